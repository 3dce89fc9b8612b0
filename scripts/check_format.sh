#!/usr/bin/env bash
# Fails when a source file is not formatted according to .clang-format; --fix formats all of them.
set -euo pipefail
cd "$(dirname "$0")/.."
case ${1:-} in
  '') mode=(--dry-run --Werror) ;;
  --fix) mode=(-i) ;;
  *)
    echo "check_format: '--fix' or nothing, not '$1'" >&2
    exit 2
    ;;
esac
git ls-files -z -- '*.h' '*.cpp' '*.mm' | xargs -0 -n 40 -P "$(nproc)" clang-format-19 "${mode[@]}"
