#!/usr/bin/env bash
# Installs what is missing, builds the dev preset (sanitizers on) and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/install-packages.sh

install_packages
cmake --preset dev
cmake --build --preset dev
exec xvfb-run -a -s "-screen 0 1400x1000x24" ctest --preset dev
