#!/usr/bin/env bash
# Uses a terminal with the plug-in as much as an operator would in months: 50,000 rebuilds, 5,000 dialogs, 1,000 loads,
# ten hours of driving. Status 1 when memory, handles, timers or connections grow by more than docs/reliability.md
# states.
#   scripts/soak.sh [--share PART]
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/install-packages.sh
source scripts/with-display.sh

install_packages
cmake --preset release >/dev/null
cmake --build --preset release --target rxmap-soak
with_virtual_display build/release/Tests/Soak/rxmap-soak "$@"
