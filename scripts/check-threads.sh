#!/usr/bin/env bash
# Builds with the thread sanitizer and runs the tests in which threads meet: groups, the broker, the back-end, which
# loads and checks maps in threads of its own, and the check of a track.
#   scripts/check-threads.sh
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/install-packages.sh
source scripts/with-display.sh

install_packages
cmake --preset threads >/dev/null
cmake --build --preset threads --target framework-tests backend-tests machine-tests

with_virtual_display ctest --preset threads --parallel "$(nproc)" --tests-regex \
    '^tst_(databroker|groupproperty|recursivegrouplock|writeoutcome|orvikdebugclass|dbgroup(qml|rx)|prescriptionbackend|gdalsession|ringrepair_tangles|trackcheck)'
