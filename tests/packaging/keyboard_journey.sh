#!/bin/sh
# The main job with the keyboard alone: starts the tessaly that is on the PATH, logs on to the
# sample cluster, opens Meridian, extracts the entities with indicators and header row and saves
# them in the home folder: keyboard_journey.sh NAME.txt. Needs a display, openbox and xdotool. Ends with 1 when a
# window does not come or the program does not end in order.
set -eu
saved="$HOME/$1"

# window TITLE: waits until that window has the keyboard.
window() {
    tries=0
    until [ "$(xdotool getactivewindow getwindowname 2>/dev/null)" = "$1" ]; do
        tries=$((tries + 1))
        if [ "$tries" -gt 300 ]; then
            echo "the window '$1' does not come; '$(xdotool getactivewindow getwindowname)' is there" >&2
            exit 1
        fi
        sleep 0.1
    done
    sleep 0.3 # its first keys would be lost while it takes the focus
}

openbox 2>/dev/null &
tessaly &
program=$!
window Logon
xdotool key Return
window "Open Application"
xdotool key Down Return
window Tessaly
xdotool type Entity
xdotool key Return alt+e
window "Tessaly - Extracts"
xdotool key alt+u alt+e
sleep 1
xdotool key alt+h alt+s
window "Tessaly - Save File..."
xdotool key shift+Tab shift+Tab shift+Tab Down Tab Tab Tab # the second drive is the home folder
xdotool type "$1"
xdotool key Return
window "File Saved"
xdotool key Return
window "Tessaly - Extracts"
xdotool key alt+f
sleep 0.3
xdotool key e
wait "$program"
[ -s "$saved" ]
