#!/usr/bin/env bash
# install-packages.sh GROUP...
# The one install step: the Debian packages that Ondelis needs, in three groups. Installs the missing ones, as root or
# through sudo, and says which.
#
#     program   to build the program and to run it
#     screen    a display where there is none, and a person's keys, clipboard and eyes on it
#     checks    tests, benchmarks, the driver, the gallery, the code's shape, the package
set -euo pipefail

packages=()
for group; do
    case $group in
        program)
            # Building; the icons are rendered from a drawing
            packages+=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev librsvg2-bin)
            # Running: the platform plugins, the toolkit's French words, the common font
            packages+=(qt6-qpa-plugins qt6-wayland qt6-translations-l10n fonts-dejavu-core)
            ;;
        screen) packages+=(xvfb xdotool xclip imagemagick) ;;
        checks)
            # Tests and benchmarks
            packages+=(libgtest-dev libgmock-dev libbenchmark-dev libmpfr-dev nlohmann-json3-dev)
            packages+=(pkg-config libxcb1-dev libxcb-damage0-dev qt6-base-private-dev fonts-cantarell fonts-noto-core)
            # Formatting and lint
            packages+=(clang-format clang-tidy shellcheck)
            # A desktop around the program in its tests, and the eyes of a screen reader
            packages+=(openbox xfwm4 x11-xserver-utils dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi)
            # The drawings, made again by tools/dessins
            packages+=(python3)
            # The guide, and the checks of its pages
            packages+=(pandoc tidy)
            # A region with a decimal comma, for tests
            packages+=(locales)
            # The package and what people install
            packages+=(debhelper lintian desktop-file-utils appstream man-db)
            ;;
        *)
            sed -n '2,8s/^# \?//p' "${BASH_SOURCE[0]}" >&2
            exit 2
            ;;
    esac
done

if ! command -v apt-get >/dev/null; then
    echo "There is no apt-get here: install what your system calls ${packages[*]}, then build as the README says for" \
        "other systems." >&2
    exit 1
fi

missing=()
for package in "${packages[@]}"; do
    state=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [[ $state == "install ok installed" ]] || missing+=("$package")
done

if [[ ${#missing[@]} -eq 0 ]]; then
    echo "All ${#packages[@]} packages are installed."
    exit 0
fi

as_root=()
if [[ $EUID -ne 0 ]]; then
    command -v sudo >/dev/null || { echo "Only root can do it: apt-get install ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
fi

echo "Installing ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { "${as_root[@]}" apt-get -qq update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0 \
        --no-install-recommends install "${missing[@]}"; } >"$log" 2>&1; then
    said=$(grep -m1 '^E: ' "$log" || tail -n1 "$log")
    echo "apt-get failed (${said#E: }): see whether the network answers, then call this again." >&2
    exit 1
fi
echo "Installed ${#missing[@]} packages."
