#!/usr/bin/env bash
# Checks the format of all sources; then clang-tidy and clazy look at the sources of the plug-in and of the simulator that
# changed since a revision (by default the last commit), with the headers that they include. Installs the tools.
#   scripts/check-style.sh [--format-only | REVISION]
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/install-packages.sh

install_packages clang-format
git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run -Werror
[[ "${1:-}" == --format-only ]] && exit 0

install_packages clang-tidy clazy
mapfile -t changed < <(git diff --name-only --diff-filter=d "${1:-HEAD^}" -- 'Plugins/*.cpp' 'Simulator/*.cpp')
((${#changed[@]} == 0)) && exit 0
cmake --preset dev >/dev/null
cmake --build --preset dev --target terminal-simulator >/dev/null # Writes the headers that moc and rcc make.
clang-tidy --quiet -p build/dev --extra-arg=-Wno-unknown-warning-option "${changed[@]}"
# Left out: constant texts live as long as their library; the host's interface has empty texts that are not null; the
# properties that scripts see on the terminal do not notify; a word may have no first letter.
clazy-standalone -p build/dev --header-filter='(HostInterfaces|Plugins|Simulator)/.*' --extra-arg=-Werror \
    --checks=level0,level1,no-non-pod-global-static,no-empty-qstringliteral,no-qproperty-without-notify,no-qstring-left \
    "${changed[@]}"
