#!/usr/bin/env bash
# Installs what is missing, builds both presets and runs the tests on a virtual display: all of them under the
# sanitizers, and those of what ships against the release build.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/install-packages.sh
source scripts/with-display.sh

run_tests() {
    with_virtual_display ctest "$@" --parallel "$(nproc)" | awk -f scripts/slowest-tests.awk
}

install_packages
cmake --preset dev
cmake --build --preset dev
cmake --preset release
cmake --build --preset release --target terminal-simulator tests-of-what-ships
run_tests --preset dev
run_tests --preset release --label-regex ships
