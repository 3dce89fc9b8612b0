#!/usr/bin/env bash
# Grades clips with veridial and with ffmpeg's lut3d in turn, without encoding, and prints frames per second and their
# ratios. The clips are made once: a moving window of a sample picture with noise, at bit rates typical of cameras.
#   scripts/compare_clips.sh [ROUNDS]          5 rounds by default
#   scripts/compare_clips.sh ROUNDS --check-floors    exit code 1 when a ratio is below its floor
set -euo pipefail
export LC_ALL=C
root=$(cd "$(dirname "$0")/.." && pwd)
rounds=${1:-5}
check=${2:-}
veridial=$root/build/release/bin/veridial
work=$root/build/clips
grade=(--wheel "shadows=205,38" --wheel "highlights=38,30" --sky "90,60" --film "270,40")

make_clips() {
  local picture=$work/landscape.png
  local moving="zoompan=z='1.1+0.001*on':x='2*on':y=on:d=1:fps=25"
  [ -f "$picture" ] || "$root/build/release/bin/make_samples" "$work"
  local tags="-color_range tv -colorspace bt709 -color_primaries bt709 -color_trc bt709"
  local from="ffmpeg -nostdin -v error -y -loop 1 -i $picture"
  [ -f "$work/hd_h264.mp4" ] ||
    $from -vf "scale=2400:-2,$moving:s=1920x1080,noise=alls=5:allf=t,format=yuv420p" -frames:v 150 \
      -c:v libx264 -preset veryfast -b:v 20M -maxrate 24M -bufsize 8M $tags "$work/hd_h264.mp4"
  [ -f "$work/uhd_h264.mp4" ] ||
    $from -vf "scale=4400:-2,$moving:s=3840x2160,noise=alls=5:allf=t,format=yuv420p" -frames:v 75 \
      -c:v libx264 -preset veryfast -b:v 80M -maxrate 96M -bufsize 32M $tags "$work/uhd_h264.mp4"
  [ -f "$work/uhd_prores.mov" ] ||
    $from -vf "scale=4400:-2,$moving:s=3840x2160,noise=alls=2:allf=t,format=yuv422p10le" -frames:v 75 \
      -c:v prores -profile:v 2 $tags "$work/uhd_prores.mov"
}

# Wall-clock seconds and processor seconds of a command.
timed() {
  local TIMEFORMAT="%R %U %S"
  { time "$@" >/dev/null 2>&1; } 2>&1 | awk '{ print $1, $2 + $3 }'
}

median() { sort -n | awk '{ v[NR] = $1 } END { print NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

mkdir -p "$work"
cmake --build "$root/build/release" --target veridial make_samples >/dev/null
make_clips
"$veridial" lut "${grade[@]}" -o "$work/grade.cube" -f
failed=0
for clip in hd_h264.mp4 uhd_h264.mp4 uhd_prores.mov; do
  frames=$(ffprobe -v error -select_streams v -show_entries stream=nb_frames -of csv=p=0 "$work/$clip")
  rm -f "$work"/times.*
  for ((round = 0; round < rounds; ++round)); do
    timed ffmpeg -nostdin -y -i "$work/$clip" -f null - >>"$work/times.decode"
    timed ffmpeg -nostdin -y -i "$work/$clip" -vf "lut3d=$work/grade.cube" -f null - >>"$work/times.lut3d"
    timed "$veridial" grade "$work/$clip" "${grade[@]}" -o /dev/null >>"$work/times.veridial"
  done
  result=$(for column in 1 2; do
    for what in decode lut3d veridial; do cut -d' ' -f$column "$work/times.$what" | median; done
  done | tr '\n' ' ')
  awk -v clip="$clip" -v frames="$frames" -v check="$check" '{
    printf "%-16s decode only %6.1f fps   lut3d %5.1f fps   veridial %6.1f fps\n", clip, frames / $1, frames / $2, frames / $3
    printf "%-16s veridial / lut3d %.2f (processor time %.2f)   veridial / decode only %.2f (%.2f)\n", "",
      $2 / $3, $5 / $6, $1 / $3, $4 / $6
    floor = clip ~ /prores/ ? 4 : 2.5
    exit check == "--check-floors" && ($2 / $3 < floor || $1 / $3 < 0.65)
  }' <<<"$result" || failed=1
done
exit $failed
