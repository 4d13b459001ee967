#!/usr/bin/env bash
# Counts which lines and branches of the plug-in run in the plug-in's own tests (Tests/uiPluginRxMap and Tests/Hostile),
# and names those that do not. Status 1 below 95 % of lines or 90 % of branches. A branch is a condition in the source
# being true, or being false; what the compiler adds (the way out of an exception, say) does not count.
#   scripts/coverage.sh
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/install-packages.sh
source scripts/with-display.sh

install_packages
install_packages clang llvm
build="$PWD/build/coverage"
cmake --preset coverage >/dev/null
cmake --build --preset coverage --target plugin-tests plugin-map-tests plugin-dialog-tests rxmap-hostile

rm -rf "$build/profiles"
# A file for each process, since the order of things differs from program to program; a process that loads the plug-in
# several times adds to its own file.
export LLVM_PROFILE_FILE="$build/profiles/%p-%m.profraw"
for tests in uiPluginRxMap Hostile; do
    with_virtual_display ctest --test-dir "$build/Tests/$tests" --output-on-failure --parallel "$(nproc)"
done

llvm-profdata merge -o "$build/plugin.profdata" "$build"/profiles/*.profraw
llvm-cov export -format=lcov -instr-profile "$build/plugin.profdata" "$build/Plugins/uiPluginRxMap/libuiPluginRxMap.so" \
    -object "$build/Tests/uiPluginRxMap/plugin-tests" -object "$build/Tests/uiPluginRxMap/plugin-map-tests" \
    -object "$build/Tests/uiPluginRxMap/plugin-dialog-tests" | awk -F '[:,]' -v room=/../../Plugins/uiPluginRxMap/ '
    $1 == "SF" { start = index($2, room); file = substr($2, start + length(room)) }
    start == 0 { next } # This is not a source of the plug-in.
    $1 == "DA" { ++lines; if ($3 > 0) ++run; else print file ":" $2 ": not run" }
    $1 == "BRDA" { ++branches; if ($5 > 0) ++taken; else print file ":" $2 ": a condition is never " ($4 % 2 ? "false" : "true") }
    END {
        if (lines == 0 || branches == 0) { print "nothing was counted"; exit 1 }
        printf "lines: %d of %d (%.1f %%), branches: %d of %d (%.1f %%)\n",
            run, lines, 100 * run / lines, taken, branches, 100 * taken / branches
        exit run < 0.95 * lines || taken < 0.9 * branches
    }'
