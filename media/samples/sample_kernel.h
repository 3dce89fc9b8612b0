// The loops over rows of samples: codes to floats and back, and what mixes rows; in the widest instructions that the
// processor has, with the same results on all of them.
#pragma once

#include "media/samples/ycbcr_coding.h"

#include <cstddef>
#include <cstdint>

namespace ov1::media::sample_kernel
{

/// Buffers of floats have so many floats that may be read and written before their first and after their last sample.
inline constexpr std::size_t margin = 32;

/// Codes as values. Whole vectors are written: up to margin floats after the last.
void widen(const std::uint8_t* codes, std::size_t count, const code_range& range, float* values);
void widen(const std::uint16_t* codes, std::size_t count, const code_range& range, float* values);

/// Values as the nearest codes, ties to even, limited to the range's; a NaN counts as 0. Nothing is written beside.
void narrow(const float* values, std::size_t count, const code_range& range, std::uint8_t* codes);
void narrow(const float* values, std::size_t count, const code_range& range, std::uint16_t* codes);

/// A row as its even and its odd members, and back: as many of both. Reads and writes up to margin floats after the
/// last.
void split(const float* row, std::size_t pairs, float* even, float* odd);
void join(const float* even, const float* odd, std::size_t pairs, float* row);

/// The mean of two rows.
void halve(const float* a, const float* b, std::size_t count, float* out);

/// A weighted sum of rows. Writes up to margin floats after the last.
void mix(const float* const* rows, const float* weights, std::size_t row_count, std::size_t count, float* out);

} // namespace ov1::media::sample_kernel
