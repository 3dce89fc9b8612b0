// The loops that render rows of pixels through a render table, in the widest vectors of the processor.
//
//   line      the entries around a (green, blue) cell at one red grid point (render_table.h)
//   fraction  distance of a pixel from the grid point below it, in grid steps
//   place     the line of a pixel's lower corner, and its fraction on each axis
//   group     the pixels that are interpolated together: 8, or 4 where a vector holds four floats
//   chunk     128 pixels: their places stay in the first cache
//
// A chunk is rendered in two stages, all places first. Then no interpolation waits for the arithmetic that finds its
// line, and loads of many pixels are under way at once.
// Every function gives the same bits on every instruction set, and the same bits for a pixel wherever it is in a row. A
// count of 0 does nothing.
#pragma once

#include "effect/lut/render_table.h"
#include "shared/half_float.h"
#include "shared/rgb_planes.h"

#include <cstddef>

namespace ov1::row_kernel
{

/// out[i] = lookup(in[i]) for count pixels, to the bit. in and out are the same row or do not overlap; any alignment.
/// The alpha of in is ignored, that of out is the table's. Safe from several threads.
void render_argb(const render_table& table, const argb_float* in, argb_float* out, std::size_t count);

/// As render_argb, on halfs in the order R, G, B, A: widened, looked up, rounded to the nearest half.
void render_half(const render_table& table, const half_bits* in, half_bits* out, std::size_t count);

/// As render_argb, on one row for each channel, without alpha. Each plane of out is the same channel's plane of in or
/// overlaps none.
void render_planes(const render_table& table, const rgb_planes<const float>& in, const rgb_planes<float>& out,
                   std::size_t count);

} // namespace ov1::row_kernel
