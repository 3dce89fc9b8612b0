// The loops over rows of samples: codes to floats, luma and chroma to red, green and blue, and back; in the widest
// instructions that the processor has, with the same results on all of them.
#pragma once

#include "media/ycbcr_coding.h"
#include "shared/rgb_planes.h"

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

/// Luma codes, and chroma samples of which two pixels share one, as red, green and blue, not limited. The first pixel
/// is the first of a sample's two; chroma_at says which samples a pixel takes. Reads a sample before and after the
/// row's, which the caller has set; writes up to margin floats after the last pixel.
template <class code>
struct shared_source
{
    const code* luma;
    const float* cb;
    const float* cr;
};
void shared_to_rgb(const shared_source<std::uint8_t>& from, std::size_t pixels, const code_range& luma,
                   const chroma_axis& axis, const ycbcr_weights& weights, const rgb_planes<float>& to);
void shared_to_rgb(const shared_source<std::uint16_t>& from, std::size_t pixels, const code_range& luma,
                   const chroma_axis& axis, const ycbcr_weights& weights, const rgb_planes<float>& to);

/// One sample for every two pixels, the inverse of what shared_to_rgb does. Reads two pixels before the row and three
/// after it, which the caller has set. Writes up to margin floats after the last sample.
void gather(const float* values, std::size_t samples, const chroma_axis& axis, float* out);

/// The mean of two rows.
void halve(const float* a, const float* b, std::size_t count, float* out);

/// A weighted sum of rows. Writes up to margin floats after the last.
void mix(const float* const* rows, const float* weights, std::size_t row_count, std::size_t count, float* out);

/// From Y in g, Cb in b and Cr in r to red, green and blue, in place and not limited.
void to_rgb(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights);

/// From red, green and blue, which are limited to 0..1 (a NaN is 0), to luma codes, and in place to Cb in b and Cr in
/// r.
void to_ycbcr(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights, const code_range& luma,
              std::uint8_t* codes);
void to_ycbcr(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights, const code_range& luma,
              std::uint16_t* codes);

} // namespace ov1::media::sample_kernel
