// From rows of floats to the frame an encoder takes.
#pragma once

#include "shared/argb_float.h"

extern "C"
{
#include <libavutil/frame.h>
}

#include <cstddef>

namespace ov1::media
{

/// First rows of pack_rows are multiples of this: no two calls then share a chroma sample.
inline constexpr std::size_t pack_row_multiple = 2;

/// Converts whole rows. Integers are limited to 0..1 and rounded to the nearest code, NaN is 0; floats pass as they
/// are. Alpha is written where the frame has it. YCbCr is full-range BT.601, as ITU-T T.871 has it for JPEG; chroma is
/// the mean of its pixels. The frame is RGB of unsigned integers or 32-bit floats without spare bits, or planar YCbCr
/// of 8 bits. Threads may write one frame at once as long as their rows differ.
void pack_rows(AVFrame& frame, std::size_t first, std::size_t rows, const argb_float* in);

} // namespace ov1::media
