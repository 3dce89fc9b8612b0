#!/usr/bin/env bash
# Builds and runs the tests under the sanitizers, and runs the fuzz targets.
#   scripts/sanitize.sh [asan] [tsan] [fuzz]     all three by default
# FUZZ_SECONDS sets how long each fuzz target runs, 60 by default.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh test

tests_under() {
  cmake --preset "$1" -DVERIDIAL_BRIDGE=ON >/dev/null
  cmake --build "build/$1"
  ctest --preset "$1" --parallel "$(nproc)"
}

# One target per processor at a time; a finding ends the run and prints the target's log.
fuzz() {
  local seconds=${FUZZ_SECONDS:-60} work=build/asan/fuzz_work
  cmake --preset asan >/dev/null
  cmake --build build/asan
  mkdir -p "$work"
  printf '%s\n' build/asan/bin/*_fuzz | xargs -P "$(nproc)" -I{} sh -c '
    name=$(basename "$1"); mkdir -p "$2/$name"
    if "$1" -max_total_time="$3" -rss_limit_mb=4096 -artifact_prefix="$2/$name-" "$2/$name" "fuzz/seeds/$name" \
        >"$2/$name.log" 2>&1
    then echo "$name: $(grep -o "Done [0-9]* runs.*" "$2/$name.log")"
    else cat "$2/$name.log"; exit 255
    fi' sh {} "$work" "$seconds"
}

for what in ${*:-asan tsan fuzz}; do
  case $what in
    asan | tsan) tests_under "$what" ;;
    fuzz) fuzz ;;
    *)
      echo "sanitize: 'asan', 'tsan' or 'fuzz', not '$what'" >&2
      exit 2
      ;;
  esac
done
