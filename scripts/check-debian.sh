#!/usr/bin/env bash
# Builds the last commit and runs all tests in a bare Debian of another suite, or with another compiler. Needs root.
#   scripts/check-debian.sh SUITE [PACKAGE,... COMPILER]      trixie      bookworm clang,libclang-rt-dev,llvm clang++
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/install-packages.sh
source scripts/bare-debian.sh

suite="${1:?which suite: bookworm, trixie, ...}"
install_packages debootstrap git
make_bare_debian "$suite" "git,ca-certificates${2:+,$2}"
git clone -q --no-hardlinks . "$machine/project"
inside env HOME=/root ${3:+"CXX=$3"} bash -c 'cd /project && ./test.sh'
