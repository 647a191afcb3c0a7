#!/usr/bin/env bash
# demonstration.sh PROGRAM PICTURE
# Starts the program on a display of its own, opens "Circuits oscillants" by the menu, types an example, all with real
# key events, and prints what the fields then show. PICTURE gets a picture of the screen.
set -euo pipefail

program=$1
picture=$2

scratch=$(mktemp -d)
started=()
finish() {
    for ((i = ${#started[@]} - 1; i >= 0; --i)); do # the program before its display
        kill "${started[i]}" 2>/dev/null || true
        wait "${started[i]}" || true
    done
    rm -rf "$scratch"
}
trap finish EXIT

# start COMMAND...: in the background, until this script ends.
start() {
    "$@" &
    started+=("$!")
}

start Xvfb -displayfd 3 -screen 0 1920x1080x24 -dpi 96 -nolisten tcp 3>"$scratch/display" 2>"$scratch/server"
until [[ -s $scratch/display ]]; do
    kill -0 "${started[0]}" 2>/dev/null || { cat "$scratch/server" >&2; exit 1; }
    sleep 0.05
done
DISPLAY=:$(<"$scratch/display")
export DISPLAY QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$scratch

start "$program"
window=$(timeout 20 xdotool search --sync --onlyvisible --pid "${started[1]}" --name Kervane) ||
    { echo "the window of the program does not appear" >&2; exit 1; }
xdotool windowfocus --sync "$window"

# At a person's pace: the program has painted the answer to one key before the next comes.
keys() {
    xdotool key --delay 60 "$@"
}
into_field() {
    xdotool type --delay 60 "$1"
}
# Copies the whole field that has the keyboard, and prints what is then on the clipboard. An empty field copies nothing:
# the marker stays.
shown() {
    local mark="nothing was copied" copied
    printf '%s' "$mark" | xclip -selection clipboard >/dev/null # it stays, and would keep this output open
    keys ctrl+a ctrl+c End
    for _ in {1..20}; do
        copied=$(xclip -selection clipboard -out)
        [[ $copied == "$mark" ]] || { printf '%s' "$copied"; return; }
        sleep 0.05
    done
}

# The menu bar, its third drop-down, the second entry there.
keys F10 Right Right Down Return
# It opens as RC Série, with the keyboard in its first field. Tab goes to the units of a field, then to the next field.
into_field 1 # MHz
keys Tab Tab
into_field 1000 # ohms
keys Tab Tab Tab Tab # over the inductance
into_field 1000 # pF
keys Tab

echo '"Circuits oscillants", RC Série, 1 MHz, 1000 ohms, 1000 pF:'
for caption in "Impédance" "Déphasage en °" "Puissance en Watts" "Résonance"; do
    keys Tab
    printf '  %s: "%s"\n' "$caption" "$(shown)"
done
import -window root "$picture"
echo "The screen: $picture"
