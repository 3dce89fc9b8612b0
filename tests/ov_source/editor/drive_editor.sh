#!/usr/bin/env bash
# Drives the editor with mouse and keys under its own X server, and checks the results.
#   drive_editor.sh VERIDIAL MAKE_SAMPLES REOPEN_EDITOR
set -euo pipefail
veridial=$1 make_samples=$2 reopen_editor=$3
work=$(mktemp -d)
export HOME=$work/home LC_ALL=C.UTF-8
unset XDG_DATA_HOME XDG_CONFIG_HOME VERIDIAL_SCALE DISPLAY
program='' server=''
trap 'kill $program $server 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$work"' EXIT
cd "$work"
mkdir home

fail() {
  echo "drive_editor: $*" >&2
  cat said >&2 2>/dev/null || true
  exit 1
}

# within SECONDS COMMAND...: repeats the command until it succeeds.
within() {
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [ $SECONDS -lt $end ] || fail "timed out: $*"
    sleep 0.05
  done
}

# Counts the visible windows, the root included. The search fails without output where a window closes meanwhile: the
# callers count again until they get the number that they expect.
windows() { { xdotool search --onlyvisible --name '' 2>/dev/null || true; } | wc -l; }
has_only_root() { [ "$(windows)" -eq 1 ]; }
has_editor() { [ "$(windows)" -ge 3 ]; }
has_ended() { ! kill -0 "$program" 2>/dev/null; }

# The editor has two windows, of which the inner one gets the events. The windows of the program before may outlive it
# for a moment.
start_editor() {
  within 20 has_only_root
  "$veridial" edit "$@" >printed 2>said &
  program=$!
  within 60 has_editor
}

# The server merges moves that come at once into the last one, so each move waits a moment.
drag() {
  local x=$1 y=$2 to_x=$3 to_y=$4 steps=5 i
  xdotool mousemove "$x" "$y" sleep 0.03 mousedown 1 sleep 0.03
  for ((i = 1; i <= steps; i++)); do
    xdotool mousemove $((x + (to_x - x) * i / steps)) $((y + (to_y - y) * i / steps)) sleep 0.03
  done
  xdotool mouseup 1 sleep 0.03
}
click() { xdotool mousemove "$1" "$2" sleep 0.03 mousedown 1 sleep 0.03 mouseup 1 sleep 0.03; }

# Panels and menus open and close between events, which is slow under a sanitizer.
settle() { sleep 2; }

ends_with() {
  within 60 has_ended
  local code=0
  wait "$program" || code=$?
  program=''
  [ $code -eq "$1" ] || fail "ended with $code instead of $1"
}

printed_value() { sed -n "s/.*\"$1\":\([-0-9.e]*\).*/\1/p" printed; }
# printed_near NAME VALUE TOLERANCE: a number of the program's JSON.
printed_near() {
  local value
  value=$(printed_value "$1")
  awk -v v="$value" -v want="$2" -v most="$3" 'BEGIN { d = v - want; exit !(v != "" && d <= most && -d <= most) }' ||
    fail "$1 is \"$value\", not $2"
}

# The window is 1229 x 528 on this screen. The column of controls begins at x = 735, beneath a toolbar 64 high; the
# panel lies inside the column's frame, which is 1 wide.
toolbar_x=735 panel_x=736 panel_y=65
Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp 3>display 2>server_said &
server=$!
within 30 test -s display
DISPLAY=:$(cat display)
export DISPLAY
"$make_samples" .

echo "a grade by mouse, a preset, and the close button"
start_editor landscape.png -o out.png --json
# The highlights pad is 121 wide; its centre is at 391.5, 220.5.
drag $((panel_x + 361)) $((panel_y + 190)) $((panel_x + 371)) $((panel_y + 185))
# The arc of Global Chroma, outside the pad: a quarter of its travel of 112 above its centre.
drag $((panel_x + 170)) $((panel_y + 101)) $((panel_x + 172)) $((panel_y + 73))
# The handle of Shadows Saturation, whose travel is 92.
drag $((panel_x + 92)) $((panel_y + 361)) $((panel_x + 115)) $((panel_y + 361))
click $((panel_x + 241)) $((panel_y + 233)) # inspire
click $((toolbar_x + 191)) 32               # save
xdotool type --delay 30 'By chance'
xdotool key Return
within 20 test -s "home/.local/share/orvane/Plugin Presets/Veridial/By chance.json"
click $((toolbar_x + 287)) 32 # undo
click $((toolbar_x + 470)) 32 # close
ends_with 0
# Up by 20.5 and left by 35.5, each of 109 / 2; the rim lies at 96 % of that.
printed_near 'Highlights Hue' 30.0 1
printed_near 'Highlights Chroma' 78.3 2
printed_near 'Global Chroma' 50 3
printed_near 'Shadows Saturation' 50 3
printed_near 'Shadows Range' 0 0 # as before the random look
printed_near 'Sky Strength' 0 0
"$veridial" preset show 'By chance' >look
grep -q 'Shadows Range.*7' look && grep -q 'Mids Smoothness.*100' look || fail "the preset is not the random look: $(cat look)"
# The picture must equal the one that `grade` makes from the printed values.
options=()
for name in 'Highlights Hue' 'Highlights Chroma' 'Global Chroma' 'Highlights Lightness' 'Shadows Saturation'; do
  options+=(-s "$name=$(printed_value "$name")")
done
"$veridial" grade landscape.png -o expected.png "${options[@]}" 2>said
cmp out.png expected.png || fail "the picture written is not that of the values printed"

echo "a grade that is discarded by Escape twice"
start_editor landscape.png -o discarded.png --json
drag $((panel_x + 361)) $((panel_y + 190)) $((panel_x + 371)) $((panel_y + 185))
xdotool key --delay 50 Escape Escape
ends_with 130
[ ! -e discarded.png ] && [ ! -s printed ] || fail "something was written: $(cat printed)"

echo "a preset found by its name, and a step back to it in the history"
start_editor landscape.png -o found.png --json
for keys in 'Escape Escape' ''; do # in the panel they close only the panel
  click $((toolbar_x + 90)) 32
  xdotool type --delay 30 'TEAL cine'
  settle
  [ -z "$keys" ] || xdotool key --delay 50 $keys
  [ -z "$keys" ] || settle
done
click $((toolbar_x + 86)) 156 # the only cell that matches
settle
drag $((panel_x + 361)) $((panel_y + 190)) $((panel_x + 371)) $((panel_y + 185))
click $((toolbar_x + 345)) 32 # history: the wheel, the preset, the beginning
settle
click $((toolbar_x + 345)) 79
settle
click $((toolbar_x + 470)) 32
ends_with 0
"$veridial" grade landscape.png -o teal.png --preset 'Cinematic Teal and Orange' 2>said
cmp found.png teal.png || fail "the grade is not the preset's: $(cat printed)"

echo "150 editors in one process"
timeout 240 "$reopen_editor" 150 >printed 2>said || fail "ended with $?"
