// From the frame a decoder gives to rows of floats.
#pragma once

#include "shared/argb_float.h"

extern "C"
{
#include <libavutil/frame.h>
}

#include <cstddef>

namespace ov1::media
{

/// Whether unpack_span knows the layout: grey, RGB, YCbCr and palettes with unsigned integers up to 16 bits or 32-bit
/// floats.
[[nodiscard]] bool can_unpack(const AVFrame& frame);

/// Converts a span of one row into code values. Integers are divided by their largest code, floats pass as they are,
/// grey is repeated, alpha is 1 where there is none. YCbCr is turned to RGB by the frame's range and matrix (BT.601
/// if it names none), chroma interpolated linearly from where the frame says it sits (amid its pixels if it does not
/// say), and limited to 0..1. The span lies within the frame, whose layout is known. Any number of threads may read one
/// frame. Source of the matrices: ITU-T H.273, table 4 and equations 38 to 43; of full-range 8-bit: ITU-T T.871.
void unpack_span(const AVFrame& frame, std::size_t x, std::size_t y, std::size_t count, argb_float* out);

} // namespace ov1::media
