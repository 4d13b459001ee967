#!/usr/bin/env bash
# Installs what is missing, builds the dev preset (sanitizers on) and runs every test on a virtual display.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/install-packages.sh
source scripts/with-display.sh

# Whether every test that failed did so because the leak tracer broke off, as it does now and then on a busy machine over
# a thread that ends at exit; nothing else is tried again.
only_the_leak_tracer_broke_off() {
    local logs=build/dev/Testing/Temporary failed broken
    failed=$(cut -d: -f2- "$logs/LastTestsFailed.log" | sort -u)
    broken=$(awk '/^[0-9]+\/[0-9]+ Testing: / { name = $3 }
                  /LeakSanitizer has encountered a fatal error/ { print name }' "$logs/LastTest.log" | sort -u)
    [[ -n "$failed" && -z "$(comm -23 <(echo "$failed") <(echo "$broken"))" ]] || return 1
    echo "trying again, since only the leak tracer broke off:" $failed
}

install_packages
cmake --preset dev
cmake --build --preset dev
with_virtual_display ctest --preset dev \
    || { only_the_leak_tracer_broke_off && with_virtual_display ctest --preset dev --rerun-failed; }
