#!/usr/bin/env bash
# Holds the row loops of arm64 against those of this machine: compiled for both, arm64 under user-mode emulation, each
# compared with the lookup, and the hashes of both with each other.
set -euo pipefail
cd "$(dirname "$0")/.."
out=build/arm64
mkdir -p "$out/include"
ln -sfn /usr/include/hwy "$out/include/hwy" # headers alone: with one instruction set there is nothing to dispatch

sources="tests/arm64/kernel_hashes.cpp ov_source/effect/lut/render_table.cpp ov_source/effect/lut/row_kernel.cpp
  ov_source/effect/build/build_kernel.cpp ov_source/effect/lut/instruction_sets.cpp ov_source/effect/lut/lut_argb.cpp
  ov_source/platform/cache_size.cpp media/samples/sample_kernel.cpp media/samples/ycbcr_kernel.cpp
  media/samples/ycbcr_coding.cpp"
# What reads files is dropped by the linker, with all that it would need.
flags="-std=c++20 -O2 -Wall -Wextra -Werror -ffp-contract=off -DHWY_COMPILE_ONLY_STATIC -I. -Iov_source -I$out/include
  -ffunction-sections -Wl,--gc-sections"

# The loops of this machine are static here too: the baseline's. Its other instruction sets are the test's business.
g++ $flags $sources -o "$out/here" &
aarch64-linux-gnu-g++ $flags -static $sources -o "$out/there"
wait $!

"$out/here" >"$out/here.txt"
qemu-aarch64 "$out/there" >"$out/there.txt"
diff "$out/here.txt" "$out/there.txt"
cat "$out/there.txt"
