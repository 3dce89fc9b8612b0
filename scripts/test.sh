#!/usr/bin/env bash
# Installs, builds and tests everything in build/release. Arguments go to ctest.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh test
cmake --preset release -DVERIDIAL_TESTS=ON -DVERIDIAL_BENCHES=ON -DVERIDIAL_BRIDGE=ON -DVERIDIAL_WERROR=ON >/dev/null
cmake --build build/release
ctest --preset release --parallel "$(nproc)" "$@"
