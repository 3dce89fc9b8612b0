// The loops over rows of samples: codes to floats and back, sums of rows, and pixels to planes and back; in the widest
// instructions that the processor has, with the same results on all of them.
#pragma once

#include "media/samples/ycbcr_coding.h"
#include "shared/argb_float.h"
#include "shared/rgb_planes.h"

#include <cstddef>
#include <cstdint>

namespace ov1::media::sample_kernel
{

/// Rows of floats have this many further floats before their first and after their last sample, which may be read and
/// written. Rows of pixels (argb_float) and of codes have none.
inline constexpr std::size_t margin = 32;

/// Codes as values, to two roundings. Writes up to margin floats after the last.
void widen(const std::uint8_t* codes, std::size_t count, const code_range& range, float* values);
void widen(const std::uint16_t* codes, std::size_t count, const code_range& range, float* values);

/// The same, rounded once: the floats nearest to code / codes_per_unit. Half as fast; for stills, whose floats may be
/// stored.
void widen_exactly(const std::uint8_t* codes, std::size_t count, const code_range& range, float* values);
void widen_exactly(const std::uint16_t* codes, std::size_t count, const code_range& range, float* values);

/// Values as the nearest codes, ties to even, limited to the range's; a NaN counts as 0.
void narrow(const float* values, std::size_t count, const code_range& range, std::uint8_t* codes);
void narrow(const float* values, std::size_t count, const code_range& range, std::uint16_t* codes);

/// Values limited to 0..1 as codes 0..largest, ties upward: how RGB stills round. A NaN counts as 0.
void narrow_half_up(const float* values, std::size_t count, float largest, std::uint8_t* codes);
void narrow_half_up(const float* values, std::size_t count, float largest, std::uint16_t* codes);

/// Planes to pixels; the limited form takes colours to 0..1. Alpha may be null: it is 1 then.
void to_pixels(const rgb_planes<const float>& row, const float* alpha, std::size_t count, argb_float* pixels);
void to_limited_pixels(const rgb_planes<const float>& row, const float* alpha, std::size_t count, argb_float* pixels);

/// Pixels to planes, unchanged; alpha is not null. Writes up to margin floats after the last.
void to_planes(const argb_float* pixels, std::size_t count, const rgb_planes<float>& row, float* alpha);

/// A row as its even and its odd members, and back: as many of both. Reads and writes up to margin floats after the
/// last.
void split(const float* row, std::size_t pairs, float* even, float* odd);
void join(const float* even, const float* odd, std::size_t pairs, float* row);

/// The mean of two rows; out may be one of them. Writes up to margin floats after the last.
void halve(const float* a, const float* b, std::size_t count, float* out);

/// A weighted sum of row_count rows, at least one, in the order given; no row is out. Writes up to margin floats after
/// the last.
void mix(const float* const* rows, const float* weights, std::size_t row_count, std::size_t count, float* out);

} // namespace ov1::media::sample_kernel
