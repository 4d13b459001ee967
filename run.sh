#!/usr/bin/env bash
# Installs what is missing, builds the release preset and starts the terminal simulator with the arguments given.
# Without arguments it opens the sample field; where there is no display it then runs the demonstration instead.
set -euo pipefail
project="$(cd "$(dirname "$0")" && pwd)"
source "$project/scripts/install-packages.sh"
source "$project/scripts/with-display.sh"

# Standard output is the simulator's.
{
    install_packages
    (
        cd "$project"
        cmake --preset release
        cmake --build --preset release --target terminal-simulator
    )
} >&2
simulator="$project/build/release/Simulator/Terminal/terminal-simulator"

if (($# > 0)) && needs_operator "$@" && ! has_display; then
    echo "run.sh: there is no display; use --describe, --at, --check, --drive, --screenshot or --script, or no argument for a demonstration" >&2
    exit 1
elif (($# > 0)); then
    with_display "$simulator" "$@"
elif has_display; then
    "$simulator" "$project/Simulator/Resources/sample/sample-field.shp"
else
    echo "There is no display: running the demonstration."
    cd "$project"
    mkdir -p build/demo
    with_virtual_display "$simulator" --script Simulator/Resources/demo.js
fi
