#!/usr/bin/env bash
# Makes the pictures of the documentation: the display with the sample field and with a file that needs checking.
#   scripts/make-pictures.sh [FOLDER [PROGRAM]]
# FOLDER: by default docs/pictures. PROGRAM: the terminal simulator, by default that of the release preset, which is
# built.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/install-packages.sh
source scripts/with-display.sh

pictures="${1:-docs/pictures}"
program="${2:-build/release/Simulator/Terminal/terminal-simulator}"
sample=Simulator/Resources/sample/sample-field.shp
if (($# < 2)); then
    install_packages
    cmake --preset release >/dev/null
    cmake --build --preset release --target terminal-simulator >&2
fi
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT
export XDG_CONFIG_HOME="$scratch" # Remembered choices do not show.
mkdir -p "$pictures"

# photograph SCRIPT [ARGUMENT...]
photograph() {
    {
        echo "var sample = \"$sample\", pictures = \"$pictures\";"
        cat Tests/EndToEnd/scripts/helpers.js "$1"
    } >"$scratch/script.js"
    # The same display everywhere, whatever the computer's own is: the pictures are compared.
    with_virtual_display "$program" --script "$scratch/script.js" "${@:2}"
}

photograph scripts/pictures/map.js
photograph scripts/pictures/opening.js --open docs/examples/to-check.geojson
photograph Tests/EndToEnd/scripts/drive-by-touch.js

# What a report shows of the second product, prescribed and applied: the third and fourth of its pictures.
"$program" --drive "$scratch/report.html" "$sample" >/dev/null 2>"$scratch/progress" || {
    cat "$scratch/progress" >&2
    exit 1
}
keep_report_picture() {
    grep -o 'data:image/png;base64,[^"]*' "$scratch/report.html" | sed -n "$1s/.*,//p" | base64 -d >"$pictures/$2.png"
}
keep_report_picture 3 report-prescribed
keep_report_picture 4 report-applied
