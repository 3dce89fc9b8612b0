#!/usr/bin/env bash
# Makes the pictures of the documentation in docs/pictures: photographs from Debian's packages and a chart drawn by the
# project, before and after grades. Photographs and their licences are listed in docs/pictures/CREDITS.md.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh test
scripts/run.sh >/dev/null
veridial=build/release/bin/veridial
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The packages are unpacked, not installed: only their pictures are needed.
mkdir "$work/download"
(cd "$work/download" && apt-get -qq -o APT::Sandbox::User=root download python3-skimage python3-sklearn)
for package in "$work"/download/*.deb; do
  dpkg -x "$package" "$work/packages"
done
packages=$work/packages/usr/lib/python3/dist-packages
pagoda=$packages/sklearn/datasets/images/china.jpg
portrait=$packages/skimage/data/astronaut.png
coffee=$packages/skimage/data/coffee.png

# as_jpeg NAME PICTURE: small enough for the repository.
as_jpeg() {
  "$veridial" grade "$2" --bypass --quality 80 -o "docs/pictures/$1.jpg" -f
}

# sheet NAME INPUT SHEET-OPTION...
sheet() {
  local name=$1 input=$2
  shift 2
  "$veridial" sheet "$input" "$@" -o "$work/$name.png"
  as_jpeg "$name" "$work/$name.png"
}

looks=()
for look in "Cinematic Teal and Orange" "Golden Hour" "Moonlight" "Faded Film" "Bleach Bypass" "Lush Landscape" \
  "Cold Morning" "Pastel"; do
  looks+=(-p "$look")
done
evening=(-p "Golden Hour" --film 270,60 --greenery 180,60 --wheel highlights=45,45 --wheel shadows=230,30)
sheet before_after "$pagoda" --width 1200 "${evening[@]}"
sheet presets "$portrait" --width 900 "${looks[@]}"
sheet skin_and_wood "$coffee" --width 1000 --skin 90,90
sheet looks_landscape "$pagoda" --width 1400
sheet looks_portrait "$portrait" --width 1200
sheet looks_memory_colours build/out/memory_colours.png --width 1400

# The editor with that grade, filling a virtual screen.
cat >"$work/show_editor.sh" <<'EOF'
#!/usr/bin/env bash
set -euo pipefail
size=$1 picture=$2
shift 2
"$@" >/dev/null 2>&1 &
editor=$!
window=''
for try in $(seq 100); do
  window=$(xdotool search --onlyvisible --name 'Veridial' 2>/dev/null | head -n 1) && [ -n "$window" ] && break
  sleep 0.1
done
xdotool windowmove "$window" 0 0 windowsize "$window" "${size%x*}" "${size#*x}" mousemove "${size%x*}" "${size#*x}"
sleep 3
ffmpeg -nostdin -v error -y -f x11grab -video_size "$size" -draw_mouse 0 -i "$DISPLAY" -frames:v 1 "$picture"
kill "$editor"
wait "$editor" || true
EOF
xvfb-run -a -s "-screen 0 1366x860x24" bash "$work/show_editor.sh" 1366x860 "$work/editor.png" \
  "$veridial" edit "$pagoda" "${evening[@]}"
as_jpeg editor "$work/editor.png"
