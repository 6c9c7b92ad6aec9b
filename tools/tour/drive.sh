#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# usage: drive.sh PROGRAM ROM PICTURE_FOLDER     (inside a display without a window manager)
# Opens the ROM through menu and dialog, scrolls, changes mode and zoom, takes a tile into the Editor, paints it, saves it, leaves. Every step
# must change what is seen, and the save must change the file; otherwise the tour fails.
set -euo pipefail
program=$1
rom=$2
pictures=$3

"$program" &
pid=$!
trap 'kill "$pid" 2>/dev/null || true' EXIT
main=$(timeout 30 xdotool search --sync --onlyvisible --pid "$pid" --name 'Brolk Plus' | head -n 1)
# The main window stands at the bottom left of the screen at its first start.
eval "$(xdotool getwindowgeometry --shell "$main")"
left=$X
top=$Y
step=0

fail() { echo "The tour failed: $1" >&2; exit 1; }

same() { [ "$(compare -metric AE "$1" "$2" null: 2>&1 || true)" = 0 ]; }

picture() { # name: keeps the screen once it has changed since the picture before and stands still
  step=$((step + 1))
  local file next tries
  file=$(printf '%s/%d-%s.png' "$pictures" "$step" "$1")
  next=$pictures/next.png
  import -window root "$file"
  for tries in $(seq 60); do
    sleep 0.4
    import -window root "$next"
    if same "$file" "$next" && { [ -z "${before:-}" ] || ! same "$before" "$file"; }; then
      rm "$next"
      before=$file
      return
    fi
    mv "$next" "$file"
  done
  fail "nothing has changed at $1"
}

window() { # title: waits until a window of the program with this title is up
  timeout 30 xdotool search --sync --onlyvisible --pid "$pid" --name "$1" >/dev/null || fail "no window '$1'"
  sleep 0.5
}

click() { # x y [button [times]]: inside the main window, in pixels
  xdotool mousemove $((left + $1)) $((top + $2))
  sleep 0.1
  xdotool click --repeat "${4:-1}" --delay 40 "${3:-1}"
  sleep 0.2
}

# Places in the main window, in pixels: the windows stand where the default layout puts them.
area=70                                # height of menu bar and toolbar
panel_x=$((2 + 3)) panel_y=$((area + 2 + 23))
browser_x=$((180 + 3)) browser_y=$((area + 2 + 23))
editor_x=$((397 + 3)) editor_y=$((area + 2 + 23))

picture start

click 25 9                             # menu Browser
xdotool key Down Return                # Open file
window '^Open'
xdotool type --delay 5 "$rom"
picture open-dialog
xdotool key Return
picture opened

for _ in 1 2 3 4; do click $((browser_x + 192 + 8)) $((browser_y + 384 - 8)); done   # the scroll bar's lower arrow
picture scrolled

click $((panel_x + 80)) $((panel_y + 235))     # the list of modes
sleep 0.3
xdotool key Down Return
sleep 0.3
picture other-mode
click $((panel_x + 80)) $((panel_y + 235))
sleep 0.3
xdotool key Up Return
for _ in 1 2 3 4; do click $((browser_x + 192 + 8)) $((browser_y + 8)); done         # back to the top

click $((panel_x + 25)) $((panel_y + 97))      # zoom in
picture zoomed
click $((panel_x + 65)) $((panel_y + 97))      # zoom out

click $((browser_x + 36)) $((browser_y + 36)) 1 2   # a double click takes the tile
picture tile-in-editor
click $((editor_x + 5)) $((editor_y + 5))      # select its slot
xdotool mousemove_relative 1 1
sleep 0.2
xdotool key --window "$main" 0 2>/dev/null || true
picture tile-selected

click 65 9                             # menu Editor
xdotool key Down Down Return           # Paint Mode
for offset in 2 5 8 11 14 17 20; do click $((editor_x + offset)) $((editor_y + offset)); done
picture painted

sum=$(md5sum <"$rom")
xdotool key s                          # save the tile
window 'Save'
picture save-question
xdotool key Return                     # Yes
picture saved
[ "$(md5sum <"$rom")" != "$sum" ] || fail "the save did not change the file"

click 25 9                             # menu Browser
xdotool key Up Return                  # Exit
for _ in $(seq 100); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
kill -0 "$pid" 2>/dev/null && fail "Exit did not end the program"
wait "$pid" || fail "the program ended with status $?"
trap - EXIT
