#!/usr/bin/env bash
# Makes the pictures of docs/pictures: what an operator sees who drives the sample field. Builds the release preset.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/install-packages.sh
source scripts/with-display.sh

install_packages
cmake --preset release >/dev/null
cmake --build --preset release --target terminal-simulator >&2
script="$(mktemp --suffix=.js)"
trap 'rm -f "$script"' EXIT
{
    echo 'var sample = "Simulator/Resources/sample/sample-field.shp", pictures = "docs/pictures";'
    cat Tests/EndToEnd/helpers.js Tests/EndToEnd/drive-by-touch.js
} >"$script"
mkdir -p docs/pictures
with_virtual_display build/release/Simulator/Terminal/terminal-simulator --script "$script"
