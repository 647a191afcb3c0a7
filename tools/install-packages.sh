#!/usr/bin/env bash
# The one install step: every Debian package that building, running and testing Ondelis needs. Installs those
# that are missing, as root or through sudo, and says which.
set -euo pipefail

packages=(
    # Building; the icons are rendered from a drawing
    g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-base-private-dev qt6-svg-dev librsvg2-bin
    # Running: the platform plugins, the toolkit's French words, the common font
    qt6-qpa-plugins qt6-wayland qt6-translations-l10n fonts-dejavu-core
    # Tests and benchmarks
    libgtest-dev libgmock-dev libbenchmark-dev libmpfr-dev nlohmann-json3-dev
    libxcb1-dev libxcb-damage0-dev
    fonts-cantarell fonts-noto-core
    # The code's shape
    clang-format clang-tidy shellcheck
    # A display where there is none, and a person's keys, clipboard and eyes on it
    xvfb xdotool xclip imagemagick
    # A desktop around the program in its tests, and the eyes of a screen reader
    openbox xfwm4 x11-xserver-utils dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi
    # The drawings, made anew by tools/dessins
    python3
    # A region with a decimal comma, for tests
    locales
    # The package and what people install
    dpkg-dev lintian desktop-file-utils appstream man-db
)

missing=()
for package in "${packages[@]}"; do
    state=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
    [[ $state == "install ok installed" ]] || missing+=("$package")
done

if [[ ${#missing[@]} -eq 0 ]]; then
    echo "All ${#packages[@]} packages are installed."
    exit 0
fi
if ! command -v apt-get >/dev/null; then
    echo "No apt-get here. Install what your system calls: ${missing[*]}" >&2
    exit 1
fi

as_root=()
if [[ $EUID -ne 0 ]]; then
    command -v sudo >/dev/null || { echo "Run as root, or install: ${missing[*]}" >&2; exit 1; }
    as_root=(sudo)
fi

echo "Installing ${missing[*]}"
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { "${as_root[@]}" apt-get -qq update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Dpkg::Use-Pty=0 \
        --no-install-recommends install "${missing[@]}"; } >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
fi
echo "Installed ${#missing[@]} packages."
