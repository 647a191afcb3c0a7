#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it. Without a display it is shown at work on a virtual one.
#
#     ./run.sh            the program
#     ./run.sh gallery    pictures of all panels, in the folder gallery
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/steps.sh

program=build/program/src/ondelis

# A display on another machine is assumed to work.
has_display() {
    [[ -S ${XDG_RUNTIME_DIR:-}/${WAYLAND_DISPLAY:-} ]] && return
    local display=${DISPLAY:-}
    case $display in
        "") false ;;
        :*) display=${display#:} && [[ -S /tmp/.X11-unix/X${display%.*} ]] ;;
    esac
}

run() {
    local packages=(program)
    has_display || packages+=(screen)
    step "Packages" tools/install-packages.sh "${packages[@]}"
    step "The program" build program
    if has_display; then
        echo
        exec "$program"
    fi
    step "No display here: the program at work on a virtual one" \
        tools/demonstration.sh "$program" "$PWD/build/demonstration.png"
}

gallery() {
    step "Packages" tools/install-packages.sh program checks
    step "Release build" build release galerie
    step "Gallery" build/release/tools/galerie/galerie gallery
    echo "All pictures: gallery/index.html"
}

case ${1-run} in
    run | gallery) "${1-run}" ;;
    *)
        sed -n '2,5s/^# \?//p' "${BASH_SOURCE[0]}" >&2
        exit 2
        ;;
esac
