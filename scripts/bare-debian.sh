# A minimal Debian in a folder that is removed when the script ends; sourced by the scripts that try things in one.
# Needs root and debootstrap.

leave_bare_debian() {
    local folder
    for folder in proc dev/shm dev; do umount --lazy "$machine/$folder" 2>/dev/null || true; done
    rm -rf --one-file-system "$machine"
}

# make_bare_debian SUITE [PACKAGE,...]: leaves the folder in `machine`.
make_bare_debian() {
    machine="$(mktemp -d)"
    chmod 755 "$machine" # Users must be able to enter.
    trap leave_bare_debian EXIT
    debootstrap --variant=minbase ${2:+"--include=$2"} "$1" "$machine"
    cp /etc/resolv.conf "$machine/etc/"
    cp -r /etc/apt/apt.conf.d "$machine/etc/apt/"
    mount -t proc proc "$machine/proc"
    mount --bind /dev "$machine/dev"
    mount -t tmpfs tmpfs "$machine/dev/shm"
    inside apt-get update -qq
}

# Runs a command in it, as root.
inside() { chroot "$machine" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
