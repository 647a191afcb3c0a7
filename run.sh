#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it. Without a display it is shown at work on a virtual one.
#
#     ./run.sh            the program
#     ./run.sh gallery    pictures of all panels, in the folder gallery
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/steps.sh

program=build/release/src/ondelis

has_display() {
    [[ -S ${XDG_RUNTIME_DIR:-}/${WAYLAND_DISPLAY:-} ]] && return
    [[ -n ${DISPLAY:-} ]] && xdotool getdisplaygeometry >/dev/null 2>&1
}

run() {
    step "Packages" tools/install-packages.sh
    step "Release build" build release ondelis
    if has_display; then
        echo
        exec "$program"
    fi
    step "No display here: the program at work on a virtual one" \
        tools/demonstration.sh "$program" "$PWD/build/demonstration.png"
}

gallery() {
    step "Packages" tools/install-packages.sh
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
