# Installs the Debian packages that are missing; sourced by the scripts that need them.
# Does not touch the network, or ask for root, when all of them are installed.

packages=(
    g++ cmake ninja-build ccache
    qtbase5-dev qtbase5-private-dev qtdeclarative5-dev qttools5-dev qttools5-dev-tools
    libglu1-mesa-dev libgl1-mesa-dev libgl1-mesa-dri
    libgdal-dev libsqlite3-dev libgeos-dev libboost-dev
    librsvg2-bin help2man fonts-liberation xvfb xauth x11-xkb-utils
)

# install_packages [PACKAGE...]: those named, or all that building and running need.
install_packages() {
    local missing=() package
    (($# > 0)) || set -- "${packages[@]}"
    for package in "$@"; do
        [[ "$(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null)" == ii* ]] || missing+=("$package")
    done
    ((${#missing[@]} == 0)) && return 0

    local as_root=()
    if ((EUID != 0)); then
        command -v sudo >/dev/null || {
            echo "these packages are missing and neither root nor sudo is at hand: ${missing[*]}" >&2
            return 1
        }
        as_root=(sudo)
    fi
    echo "installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
