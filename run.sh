#!/usr/bin/env bash
# Installs what is missing, builds the release preset and starts the terminal simulator with the arguments given.
# Without arguments it opens the sample field; where there is no display it then runs the demonstration instead.
set -euo pipefail
project="$(cd "$(dirname "$0")" && pwd)"
source "$project/scripts/install-packages.sh"

install_packages
(
    cd "$project"
    cmake --preset release >/dev/null
    cmake --build --preset release --target terminal-simulator
)
simulator="$project/build/release/Simulator/Terminal/terminal-simulator"

on_display() {
    if [[ -n "${DISPLAY:-}" || -n "${WAYLAND_DISPLAY:-}" ]]; then
        "$@"
    else
        xvfb-run -a -s "-screen 0 1280x800x24" "$@"
    fi
}

if (($# > 0)); then
    on_display "$simulator" "$@"
elif [[ -n "${DISPLAY:-}" || -n "${WAYLAND_DISPLAY:-}" ]]; then
    "$simulator" "$project/Simulator/Resources/sample/sample-field.shp"
else
    echo "There is no display: running the demonstration."
    cd "$project"
    mkdir -p build/demo
    on_display "$simulator" --script Simulator/Resources/demo.js
fi
