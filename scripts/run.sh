#!/usr/bin/env bash
# Installs what the program needs, builds it, and grades a picture. Arguments go to the program instead:
#   scripts/run.sh                         grades a sample picture into build/out, and says what it wrote
#   scripts/run.sh grade photo.jpg -o out.png
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$root/build/release

"$root/scripts/setup.sh" run
# A build folder that is there keeps its options: the tests may have been turned on in it.
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
