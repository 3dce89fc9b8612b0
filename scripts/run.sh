#!/usr/bin/env bash
# Installs what the program needs, builds it, and grades a picture. With arguments it runs the program with them instead:
#   scripts/run.sh                         grades a sample picture into build/out, and prints what it wrote
#   scripts/run.sh grade photo.jpg -o out.png
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$root/build/release

"$root/scripts/setup.sh" run
# An existing build folder keeps its options: the tests may be enabled in it.
[ -f "$build/build.ninja" ] || (cd "$root" && cmake --preset release -DVERIDIAL_TESTS=OFF >/dev/null)
cmake --build "$build" --target veridial make_samples >&2
veridial=$build/bin/veridial

if [ $# -gt 0 ]; then
  exec "$veridial" "$@"
fi

out=$root/build/out
mkdir -p "$out"
"$build/bin/make_samples" "$out"
look="Cinematic Teal and Orange"
"$veridial" grade "$out/landscape.png" -p "$look" -o "$out/graded.png" -f
"$veridial" sheet "$out/landscape.png" -p "$look" -o "$out/before_after.png" -f
"$veridial" lut -p "$look" -o "$out/graded.cube" -f
cat <<EOF
The sample picture    $out/landscape.png
graded                $out/graded.png
before and after      $out/before_after.png
the grade as a table  $out/graded.cube
EOF
