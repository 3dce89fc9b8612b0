#!/usr/bin/env bash
# Makes the pictures of the documentation anew, in docs/pictures.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/run.sh >/dev/null
veridial=build/release/bin/veridial
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# NAME INPUT SHEET-OPTION...: a sheet, as a JPEG small enough to be kept.
sheet() {
  local name=$1 input=$2
  shift 2
  "$veridial" sheet "build/out/$input.png" "$@" -o "$work/$name.png"
  "$veridial" grade "$work/$name.png" --bypass --quality 72 -o "docs/pictures/$name.jpg" -f
}
presets=()
for preset in "Cinematic Teal and Orange" "Golden Hour" "Moonlight" "Faded Film" "Bleach Bypass" "Lush Landscape" \
  "Cold Morning" "Pastel"; do
  presets+=(-p "$preset")
done
sheet looks_landscape landscape --width 1600
sheet looks_memory_colours memory_colours --width 1600
sheet presets landscape --width 1200 "${presets[@]}"
sheet before_after landscape --width 1200 -p "Cinematic Teal and Orange"
