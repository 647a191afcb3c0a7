#!/usr/bin/env bash
# clean-install.sh PACKAGE
# Installs the package on a system that has nothing else, works with the program there, removes it, and checks that
# nothing stays behind. Wants root, the network, debootstrap, some minutes and 2 GB under /var/tmp: by hand, before a
# release.
set -euo pipefail

package=$1
here=$(dirname "${BASH_SOURCE[0]}")
mirror=http://deb.debian.org/debian

system=$(mktemp -d /var/tmp/clean-install.XXXX)
finish() {
    local mount
    for mount in dev proc; do
        ! mountpoint -q "$system/$mount" || umount "$system/$mount"
    done
    rm -rf --one-file-system "$system"
}
trap finish EXIT

inside() {
    chroot "$system" /usr/bin/env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin DEBIAN_FRONTEND=noninteractive "$@"
}

# quietly COMMAND...: tells what it said only where it fails.
quietly() {
    local said
    said=$("$@" 2>&1) || { printf '%s\n' "$said" >&2; return 1; }
}

files() {
    find "$system" -xdev ! -path "$system/var/log/*" ! -path "$system/var/cache/*" -printf '%P\n' | LC_ALL=C sort
}

echo "A bare system"
quietly debootstrap --variant=minbase bookworm "$system" "$mirror"
mount -t proc proc "$system/proc"
mount --bind /dev "$system/dev"
install -d -m 700 "$system/run/user/0"

echo "What the package depends on"
quietly inside apt-get -y satisfy "$(dpkg-deb -f "$package" Depends), $(dpkg-deb -f "$package" Recommends)"
before=$(files)

echo "The package"
install -m 644 "$package" "$system/tmp/ondelis.deb"
quietly inside apt-get -y install /tmp/ondelis.deb
rm "$system/tmp/ondelis.deb"

# The process of this script becomes the program, as the demonstration wants it.
cat >"$system/tmp/ondelis" <<END
#!/bin/sh
exec chroot "$system" /usr/bin/env HOME=/root LC_ALL=C.UTF-8 XDG_RUNTIME_DIR=/run/user/0 ondelis
END
chmod +x "$system/tmp/ondelis"
"$here/../tools/demonstration.sh" "$system/tmp/ondelis" "${package%.deb}-installed.png"
rm "$system/tmp/ondelis"

echo "Its removal"
quietly inside apt-get -y purge ondelis
diff <(echo "$before") <(files)
echo "Nothing stayed behind."
