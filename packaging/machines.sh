#!/usr/bin/env bash
# machines.sh [MACHINE...]
# On bare systems for each machine (for all if none is named): builds the package and the driver from the last commit,
# plays all scenarios, installs the package where nothing else is, opens panels, removes it, and checks that nothing
# stays behind. The packages and pictures of the screens go to build/machines.
#
# Needs root, the network, 6 GB under /var/tmp and up to an hour per machine: run by hand, before a release.
# docs/machines.md says what runs where.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/steps.sh

machines=(debian-12-amd64 debian-13-amd64 debian-13-arm64)
mirror=http://deb.debian.org/debian
results=$PWD/build/machines

# ---- What must be there before anything starts

die() {
    echo "$*" >&2
    exit 1
}

is_native() {
    [[ ${1##*-} == "$(dpkg --print-architecture)" ]]
}

# Programs of the machine's processor run here, inside other systems too: the kernel holds the emulator open.
is_emulated() {
    local cpu
    case ${1##*-} in
        amd64) cpu=x86_64 ;;
        arm64) cpu=aarch64 ;;
    esac
    local emulator=/proc/sys/fs/binfmt_misc/qemu-$cpu
    [[ -e $emulator ]] || ! command -v update-binfmts >/dev/null || update-binfmts --enable "qemu-$cpu" 2>/dev/null
    grep -qs '^enabled' "$emulator" && grep -q '^flags:.*F' "$emulator"
}

check_wants() {
    local machine tool
    for machine in "$@"; do
        [[ " ${machines[*]} " == *" $machine "* ]] || die "No machine is called $machine; there are ${machines[*]}."
    done
    [[ $EUID -eq 0 ]] || die "Run $0 as root: it makes systems and works inside them."
    for tool in dpkg-deb:dpkg debootstrap:debootstrap git:git wget:wget findmnt:util-linux \
        Xvfb:xvfb xdotool:xdotool xclip:xclip import:imagemagick; do
        command -v "${tool%:*}" >/dev/null || die "Install the package ${tool#*:}: ${tool%:*} is missing."
    done
    for machine in "$@"; do
        is_native "$machine" || is_emulated "$machine" ||
            die "Install qemu-user-static and binfmt-support, or leave out $machine: programs for its processor do not run here."
    done
    git_here rev-parse --quiet --verify HEAD >/dev/null || die "Run $0 in a clone with a commit: that is what it builds."
    wget -q --spider --tries=1 --timeout=20 "$mirror/dists/stable/Release" ||
        die "Connect to the network: $mirror does not answer."
}

# Root may read the clone of another user.
git_here() {
    git -c safe.directory="$PWD" "$@"
}

# ---- Two systems per machine: a bare one, and a workshop that builds

finish() {
    local mount
    for mount in $(findmnt --raw --noheadings --output TARGET | grep "^$scratch/" | LC_ALL=C sort -r); do
        umount "$mount" || umount --lazy "$mount"
    done
    rm -rf --one-file-system "$scratch"
}

# inside SYSTEM COMMAND...
inside() {
    local system=$1
    shift
    chroot "$system" /usr/bin/env -i HOME=/root LC_ALL=C.UTF-8 PATH=/usr/sbin:/usr/bin:/sbin:/bin \
        DEBIAN_FRONTEND=noninteractive "$@"
}

# quietly COMMAND...: shows its output only if it fails.
quietly() {
    local said
    said=$("$@" 2>&1) || { printf '%s\n' "$said" >&2; return 1; }
}

# The workshop is a copy of the bare system. Where the processor is emulated, which makes a compiler some sixteen times
# slower, it is a system of this processor that builds for the other one.
make_systems() {
    local release system
    case $machine in
        debian-12-*) release=bookworm ;;
        debian-13-*) release=trixie ;;
    esac
    quietly debootstrap --variant=minbase --arch="${machine##*-}" "$release" "$bare" "$mirror" || return
    if is_native "$machine"; then
        cp -a "$bare" "$workshop" || return
    else
        quietly debootstrap --variant=minbase "$release" "$workshop" "$mirror" &&
            inside "$workshop" dpkg --add-architecture "${machine##*-}" || return
    fi
    for system in "$bare" "$workshop"; do
        mount -t proc proc "$system/proc" && mount --bind /dev "$system/dev" &&
            install -d -m 700 "$system/run/user/0" && quietly inside "$system" apt-get update || return
    done
    mkdir "$workshop/ondelis" && git_here archive HEAD | tar -x -C "$workshop/ondelis"
}

# ---- The workshop

build_package() {
    local architecture=${machine##*-}
    is_native "$machine" ||
        quietly inside "$workshop" apt-get -y --no-install-recommends install "crossbuild-essential-$architecture" ||
        return
    quietly inside "$workshop" apt-get -y --no-install-recommends --arch-only -a"$architecture" build-dep /ondelis &&
        quietly inside "$workshop" sh -c "cd /ondelis && dpkg-buildpackage -us -uc -B -a$architecture" &&
        package=$(find "$workshop" -maxdepth 1 -name 'ondelis_*.deb') && mkdir -p "$results/$machine" &&
        cp "$package" "$results/$machine" && echo "The package: $results/$machine/${package##*/}"
}

# What has no window needs no Qt, and only a make rule; with the flags of Debian's packages.
build_driver() {
    quietly inside "$workshop" apt-get -y --no-install-recommends install nlohmann-json3-dev &&
        quietly inside "$workshop" dpkg-architecture -a"${machine##*-}" -c \
            make -C /ondelis -j"$(nproc)" -f - pilote <<'END'
include /usr/share/dpkg/buildtools.mk
include /usr/share/dpkg/buildflags.mk
CXXFLAGS += -std=c++20 -ffp-contract=off -Isrc -Itools/pilote
sources := $(shell find src/kit src/forms src/panels src/shell tools/pilote -name '*.cpp')
pilote: $(sources:.cpp=.o)
	$(CXX) $(CXXFLAGS) $(LDFLAGS) -o $@ $^
END
}

play_scenarios() {
    mkdir "$bare/scenarios" && cp -r "$workshop/ondelis/pilote" "$workshop/ondelis/tests/scenarios" "$bare/scenarios" &&
        inside "$bare" sh -c 'find /scenarios -name "*.scn" -exec /scenarios/pilote {} +' && rm -r "$bare/scenarios"
}

# The desktop tests, with the packaged program and the driver.
use_panels() {
    local tests
    quietly inside "$workshop" apt-get -y install "/${package##*/}" &&
        quietly inside "$workshop" /ondelis/tools/install-packages.sh program screen checks || return
    for tests in "$workshop"/ondelis/tests/desktop/test_*.py; do
        inside "$workshop" ONDELIS=/usr/bin/ondelis PILOTE=/ondelis/pilote python3 -B "${tests#"$workshop"}" || return
    done
}

# ---- The bare system

files() {
    find "$bare" -xdev ! -path "$bare/var/log/*" ! -path "$bare/var/cache/*" -printf '%P\n' | LC_ALL=C sort
}

install_package() {
    local wants
    # The guide is the same on every machine; ./test.sh builds and checks it.
    wants="$(dpkg-deb -f "$package" Depends), $(dpkg-deb -f "$package" Recommends | sed 's/ondelis-doc, //')"
    quietly inside "$bare" apt-get -y satisfy "$wants" && before=$(files) &&
        install -m 644 "$package" "$bare/tmp/ondelis.deb" &&
        quietly inside "$bare" apt-get -y install /tmp/ondelis.deb && rm "$bare/tmp/ondelis.deb"
}

# The process of the demonstration becomes the program, as it wants it.
demonstrate() {
    cat >"$scratch/ondelis" <<END
#!/bin/sh
exec chroot "$bare" /usr/bin/env HOME=/root LC_ALL=C.UTF-8 XDG_RUNTIME_DIR=/run/user/0 ondelis
END
    chmod +x "$scratch/ondelis" && tools/demonstration.sh "$scratch/ondelis" "$results/$machine/panel.png"
}

remove_package() {
    quietly inside "$bare" apt-get -y purge ondelis && diff <(echo "$before") <(files) && echo "Nothing stayed behind."
}

# ---- One machine after another

if [[ $# -eq 0 ]]; then
    set -- "${machines[@]}"
fi
check_wants "$@"
scratch=$(mktemp -d /var/tmp/machines.XXXX)
trap finish EXIT

for machine in "$@"; do
    bare=$scratch/$machine
    workshop=$scratch/$machine-workshop
    step "$machine: two bare systems" make_systems
    step "$machine: the package" build_package
    step "$machine: the driver" build_driver
    step "$machine: all scenarios" play_scenarios
    step "$machine: the package on the bare system" install_package
    if is_native "$machine"; then
        step "$machine: a panel there" demonstrate
        step "$machine: the desktop's tests in the workshop" use_panels
    fi
    step "$machine: its removal" remove_package
    finish # before the next one takes as much room
done
report
