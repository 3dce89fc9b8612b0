#!/usr/bin/env bash
# Compares the row loops on arm64 with those of this machine. They are compiled for both; arm64 runs under user-mode
# emulation. Each is compared with the plain lookup, and their hashes with each other.
set -euo pipefail
cd "$(dirname "$0")/.."
out=build/arm64
mkdir -p "$out/include"
ln -sfn /usr/include/hwy "$out/include/hwy" # headers alone: with one instruction set there is nothing to dispatch

sources="tests/arm64/kernel_hashes.cpp ov_source/effect/lut/render_table.cpp ov_source/effect/lut/row_kernel.cpp
  ov_source/effect/build/build_kernel.cpp ov_source/effect/lut/instruction_sets.cpp ov_source/effect/lut/lut_argb.cpp
  ov_source/platform/cache_size.cpp media/samples/sample_kernel.cpp media/samples/ycbcr_kernel.cpp
  media/samples/ycbcr_coding.cpp"
# The linker drops the functions that read files, and with them their dependencies.
flags="-std=c++20 -O2 -Wall -Wextra -Werror -ffp-contract=off -DHWY_COMPILE_ONLY_STATIC -I. -Iov_source -I$out/include
  -ffunction-sections -Wl,--gc-sections"

# This machine's loops are compiled for the baseline only; render_table_test compares the other instruction sets.
g++ $flags $sources -o "$out/here" &
aarch64-linux-gnu-g++ $flags -static $sources -o "$out/there"
wait $!

"$out/here" >"$out/here.txt"
qemu-aarch64 "$out/there" >"$out/there.txt"
diff "$out/here.txt" "$out/there.txt"
cat "$out/there.txt"
