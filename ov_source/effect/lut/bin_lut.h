// The binary table format of the look tables.
//
//   offset 0  u16        edge length
//   offset 2  f32 x 3    red, green, blue of every grid point; red outermost, blue innermost
//
// Little-endian, without padding; 58,958 bytes at edge length 17. Alpha is not stored.
#pragma once

#include "shared/argb_float.h"
#include "shared/result.h"

#include <cstddef>
#include <span>
#include <vector>

namespace ov1
{

/// Size in bytes of a file with an edge length.
constexpr std::size_t bin_lut_size(std::size_t edge) { return 2 + edge * edge * edge * 12; }

/// The edge^3 entries in the order of the file, alpha 1, values as they are stored: not clamped, NaN included. Bytes of
/// another size or edge length are a failure (unreadable) without a subject.
result<std::vector<argb_float>> read_bin_lut(std::span<const unsigned char> bytes, std::size_t edge);

/// Encodes edge^3 entries in index order without their alpha.
std::vector<unsigned char> write_bin_lut(std::span<const argb_float> entries, std::size_t edge);

} // namespace ov1
