// The loops that take rows of pixels through a render table, in the widest instructions that the processor has.
//
//   line      the four entries around a (green, blue) cell at one red grid point, 64 bytes
//   place     where a pixel falls in the table: the line of its lower corner and the way to go on each axis
//   chunk     so many pixels at a time that their places stay in the first cache
#pragma once

#include "effect/lut/lut_argb.h"
#include "shared/half_float.h"
#include "shared/rgb_planes.h"

#include <cstddef>

namespace ov1
{

/// How a render table is laid out in memory. Grid point (r, g, b) has its line at
/// lines + ((r * 17 + g) * 17 + b) * floats_per_point; the corners in it are (g, b), (g, b+1), (g+1, b), (g+1, b+1),
/// each an a, r, g, b. Upper corners beyond the last grid point are the last grid point.
struct render_lines
{
    static constexpr std::size_t floats_per_line = 16;
    static constexpr std::size_t bytes_per_line = floats_per_line * sizeof(float);

    /// With deltas every point's line is followed by what the line of r + 1 has more; without them there is an 18th
    /// red, and the upper line is found there.
    bool with_deltas;
    const float* lines; ///< aligned to 64 bytes
    const lut_argb<lut_edge>* table;

    constexpr std::size_t floats_per_point() const { return with_deltas ? 2 * floats_per_line : floats_per_line; }
};

namespace row_kernel
{

/// For each of count pixels the bits that lut_argb::lookup gives. in and out are the same row or do not overlap; any
/// alignment. Safe from several threads.
void render_argb(const render_lines& table, const argb_float* in, argb_float* out, std::size_t count);

/// As render_argb, on halfs in the order R, G, B, A: widened, looked up, rounded to the nearest half. The alpha in is
/// ignored.
void render_half(const render_lines& table, const half_bits* in, half_bits* out, std::size_t count);

/// As render_argb, on a row of each channel; the table's alpha is dropped. Every plane out is the same channel's plane
/// in or overlaps none.
void render_planes(const render_lines& table, const rgb_planes<const float>& in, const rgb_planes<float>& out,
                   std::size_t count);

} // namespace row_kernel

} // namespace ov1
