// Measures a frame through the table: our loops, plain code, memcpy and other LUT renderers.
// All contenders render one frame with one table; times are compared only after the answers are.
#pragma once

#include "effect/lut/lut_argb.h"
#include "frames.h"
#include "report.h"

namespace ov1::bench
{

/// Checks all results, measures the times and adds the ratios to the report.
void run_pixel_bench(report& to, const lut_argb<lut_edge>& table, content what, std::size_t width, std::size_t height,
                     int rounds);

} // namespace ov1::bench
