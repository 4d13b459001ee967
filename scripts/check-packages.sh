#!/usr/bin/env bash
# Makes the Debian packages, checks them with lintian, and uses them in a bare Debian 12: installs them, runs the
# demonstration as a user, builds the example of a plug-in with the installed headers and shows it, and removes them.
# Asks for root; leaves the packages and the pictures in build/packages.
#   scripts/check-packages.sh
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/install-packages.sh
source scripts/bare-debian.sh

install_packages
install_packages lintian desktop-file-utils appstream debootstrap
cmake --preset release
cmake --build --preset release --target terminal-simulator manualPage
packages="$PWD/build/packages"
rm -rf "$packages"
(cd build/release && cpack -B "$packages")
rm -rf "$packages/_CPack_Packages"
lintian --allow-root --fail-on error "$packages"/*.deb
desktop-file-validate Packaging/terminal-simulator.desktop
appstreamcli validate --no-net Packaging/local.rxmap.TerminalSimulator.metainfo.xml

make_bare_debian bookworm
mkdir "$machine/packages"
cp "$packages"/*.deb "$machine/packages/"
as_user() { inside setpriv --reuid 1000 --regid 100 --clear-groups env HOME=/home/farmer bash -euc "cd; $1"; }

inside bash -c 'apt-get install -y -qq --no-install-recommends /packages/*.deb libgl1-mesa-dri xvfb xauth g++ cmake make'
inside useradd --create-home --uid 1000 --gid 100 farmer
as_user 'xvfb-run -a terminal-simulator --script /usr/share/terminal-simulator/demo.js; ls map1.png settings.png'
as_user 'cp -r /usr/share/doc/rxmaphost-dev/examples/place-plugin .
    cmake -S place-plugin -B built && cmake --build built
    xvfb-run -a terminal-simulator --plugin-dir built --describe 12,34 | tee answer
    grep -q "12 m east, 34 m north" answer'
cp "$machine"/home/farmer/*.png "$packages/"

inside bash -euc 'names="terminal-simulator uipluginrxmap rxmaphost-dev"
    dpkg -L $names | sort -u >/packages/installed
    dpkg --purge $names
    while read -r path; do
        if [[ -e "$path" ]] && ! dpkg -S "$path" >/dev/null 2>&1 && [[ "$path" != /. ]]; then echo "left behind: $path"; exit 1; fi
    done </packages/installed'
echo "The packages install, run, build a plug-in and go without a trace: $packages"
