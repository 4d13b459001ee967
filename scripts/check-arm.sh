#!/usr/bin/env bash
# Builds the last commit for 64-bit or 32-bit Arm against a Debian of that architecture, and runs the plug-in's tests in
# an emulator. Needs root.
#   scripts/check-arm.sh arm64|armhf [FOLDER]    FOLDER keeps that Debian and the build for the next time
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/install-packages.sh
source scripts/with-display.sh

case "${1:-}" in
    arm64) export RXMAP_TRIPLET=aarch64-linux-gnu RXMAP_PROCESSOR=aarch64 ;;
    armhf) export RXMAP_TRIPLET=arm-linux-gnueabihf RXMAP_PROCESSOR=arm ;;
    *) echo "scripts/check-arm.sh: which architecture, arm64 or armhf?" >&2 && exit 1 ;;
esac
folder="${2:-}"
if [[ -z "$folder" ]]; then
    folder="$(mktemp -d)"
    trap 'rm -rf "$folder"' EXIT
fi
export RXMAP_SYSROOT="$folder/debian"
libraries=(qtbase5-dev qtbase5-private-dev qtdeclarative5-dev qttools5-dev libglu1-mesa-dev libgl1-mesa-dev
    libgl1-mesa-dri libgdal-dev libsqlite3-dev libgeos-dev libboost-dev fonts-liberation)

# Unpacked, not installed: nothing in it is run, so the choices that the maintainers' scripts would make are made here.
make_debian() {
    mmdebstrap --variant=extract --arch="$1" --include="$(IFS=,; echo "${libraries[*]}")" bookworm "$RXMAP_SYSROOT"
    find "$RXMAP_SYSROOT/usr/lib/$RXMAP_TRIPLET" -maxdepth 1 -lname '/*' | while read -r link; do
        ln -sfr "$RXMAP_SYSROOT$(readlink "$link")" "$link"
    done
    rm -r "$RXMAP_SYSROOT/usr/lib/qt5/bin"
    ln -s /usr/lib/qt5/bin "$RXMAP_SYSROOT/usr/lib/qt5/bin" # Qt's tools have to run on this machine.
    cp -rT /etc/fonts "$RXMAP_SYSROOT/etc/fonts"
}

install_packages "${packages[@]}" mmdebstrap "crossbuild-essential-$1" qemu-user git
[[ -d "$RXMAP_SYSROOT" ]] || make_debian "$1"
rm -rf "$folder/project"
git clone -q --no-hardlinks . "$folder/project"
cmake -S "$folder/project" -B "$folder/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DRXMAP_WERROR=ON \
    "-DCMAKE_TOOLCHAIN_FILE=$folder/project/cmake/CrossDebian.cmake"
cmake --build "$folder/build" --target plugin-tests plugin-map-tests plugin-dialog-tests

lib="$RXMAP_SYSROOT/usr/lib/$RXMAP_TRIPLET"
export QEMU_SET_ENV="LD_LIBRARY_PATH=$lib/blas:$lib/lapack,QT_PLUGIN_PATH=$lib/qt5/plugins,LIBGL_DRIVERS_PATH=$lib/dri"
# tst_pluginmodule inspects the module with this machine's tools.
with_virtual_display ctest --test-dir "$folder/build/Tests/uiPluginRxMap" --exclude-regex tst_pluginmodule \
    --output-on-failure --timeout 1500 --parallel "$(nproc)"

# What the plug-in builds from each map is the same on both machines, bit for bit.
digests_of() {
    local notes="$1"
    shift
    rm -f "$notes"
    RXMAP_BANK_DIGESTS="$notes" with_virtual_display "$@" tst_rxmap3d_referencerebuild wholePrescriptions >/dev/null
}
cmake --preset release >/dev/null
cmake --build --preset release --target plugin-tests
digests_of "$folder/here" build/release/Tests/uiPluginRxMap/plugin-tests
digests_of "$folder/there" "qemu-$RXMAP_PROCESSOR" -L "$RXMAP_SYSROOT" "$folder/build/Tests/uiPluginRxMap/plugin-tests"
diff "$folder/here" "$folder/there"
echo "$(wc -l <"$folder/here") maps are built alike here and on $1."
