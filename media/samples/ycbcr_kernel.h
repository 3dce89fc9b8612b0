// The loops between luma and chroma and red, green and blue, in the widest instructions that the processor has, with
// the same results on all of them. Rows have margins (sample_kernel.h).
#pragma once

#include "media/samples/ycbcr_coding.h"
#include "shared/rgb_planes.h"

#include <cstddef>
#include <cstdint>

namespace ov1::media::ycbcr_kernel
{

/// A row of pixels of which two share a chroma sample, as two rows: those at even places and those at odd ones. Sample
/// i then belongs to pixel i of both rows, and nothing has to move between vector lanes.
struct pixel_pairs
{
    rgb_planes<float> even; ///< pixels 0, 2, 4, ...
    rgb_planes<float> odd;  ///< pixels 1, 3, 5, ...; one less where the width is odd
};

/// Luma codes, and chroma samples that two pixels share.
template <class code>
struct shared_source
{
    const code* luma; ///< one for each pixel, consecutive
    const float* cb;  ///< -0.5..0.5, one for every two pixels
    const float* cr;
};

/// To red, green and blue, not limited. The first pixel is the first of a sample's two; which samples a pixel takes
/// follows from chroma_at. Reads a sample before and one after the row's, which the caller has set; writes up to margin
/// floats after the last pixels.
void shared_to_rgb(const shared_source<std::uint8_t>& from, std::size_t pixels, const code_range& luma,
                   const chroma_axis& axis, const ycbcr_weights& weights, const pixel_pairs& to);
void shared_to_rgb(const shared_source<std::uint16_t>& from, std::size_t pixels, const code_range& luma,
                   const chroma_axis& axis, const ycbcr_weights& weights, const pixel_pairs& to);

/// One sample for every two pixels, the inverse of shared_to_rgb. Reads a value before each row and one after
/// it, which the caller has set. Writes up to margin floats after the last sample.
void gather(const float* even, const float* odd, std::size_t samples, const chroma_axis& axis, float* out);

/// The same as codes: the nearest ones, ties to even, limited to the range. Writes nothing after them.
void gather(const float* even, const float* odd, std::size_t samples, const chroma_axis& axis, const code_range& range,
            std::uint8_t* codes);
void gather(const float* even, const float* odd, std::size_t samples, const chroma_axis& axis, const code_range& range,
            std::uint16_t* codes);

/// From Y in g, Cb in b and Cr in r to red, green and blue, in place and not limited. Writes up to margin floats after
/// the last pixel.
void to_rgb(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights);

/// From red, green and blue, which are limited to 0..1 (a NaN is 0), to luma codes, and in place to Cb in b and Cr in
/// r.
void to_ycbcr(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights, const code_range& luma,
              std::uint8_t* codes);
void to_ycbcr(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights, const code_range& luma,
              std::uint16_t* codes);

/// The same for pairs: luma codes in the order of the pixels, chroma in place in both rows.
void to_ycbcr(const pixel_pairs& row, std::size_t pixels, const ycbcr_weights& weights, const code_range& luma,
              std::uint8_t* codes);
void to_ycbcr(const pixel_pairs& row, std::size_t pixels, const ycbcr_weights& weights, const code_range& luma,
              std::uint16_t* codes);

} // namespace ov1::media::ycbcr_kernel
