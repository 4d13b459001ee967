#!/usr/bin/env bash
# Makes the pictures of docs/pictures: what an operator sees who drives the sample field.
#   scripts/make-pictures.sh [PROGRAM]    by default the terminal simulator of the release preset, which is built
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/install-packages.sh
source scripts/with-display.sh

install_packages
program="${1:-build/release/Simulator/Terminal/terminal-simulator}"
if (($# == 0)); then
    cmake --preset release >/dev/null
    cmake --build --preset release --target terminal-simulator >&2
fi
script="$(mktemp --suffix=.js)"
trap 'rm -f "$script"' EXIT
{
    echo 'var sample = "Simulator/Resources/sample/sample-field.shp", pictures = "docs/pictures";'
    cat Tests/EndToEnd/helpers.js Tests/EndToEnd/drive-by-touch.js
} >"$script"
mkdir -p docs/pictures
with_virtual_display "$program" --script "$script"
