// The binary table format of the look tables.
//
//   offset 0  u16        edge length
//   offset 2  f32 x 3    red, green, blue of every grid point; red outermost, blue innermost
//
// Little-endian, nothing in between; 58,958 bytes at edge length 17. Alpha is not stored.
#pragma once

#include "shared/argb_float.h"

#include <cstddef>
#include <span>
#include <vector>

namespace ov1
{

/// Bytes of a table of an edge length.
constexpr std::size_t bin_lut_size(std::size_t edge) { return 2 + edge * edge * edge * 12; }

/// Decodes bytes into entries (edge^3 of them, alpha 1, values as they stand: no clamping, NaN included).
/// Returns false, with entries untouched, where size or header is not that of the edge length.
bool read_bin_lut(std::span<const unsigned char> bytes, std::size_t edge, std::vector<argb_float>& entries);

/// Encodes entries (edge^3 of them, in index order), alpha left out.
std::vector<unsigned char> write_bin_lut(std::span<const argb_float> entries, std::size_t edge);

} // namespace ov1
