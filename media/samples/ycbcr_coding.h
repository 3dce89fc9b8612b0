// Luma and colour differences as numbers: how they follow from colours, how codes represent them, where chroma lies.
//
//   luma      Y, 0..1, a weighted sum of red, green and blue
//   chroma    Cb and Cr, -0.5..0.5: blue and red less luma, scaled; often stored only for every second pixel
//   range     how codes represent values: full (all codes), or limited (16..235 and 16..240 of 8 bits)
//   site      the pixel on which a chroma sample lies; without one, it lies in the middle of its pixels
#pragma once

#include <cstddef>
#include <optional>

namespace ov1::media
{

enum class ycbcr_matrix
{
    bt601,
    bt709,
    bt2020, ///< non-constant luminance
    fcc,
    smpte240m,
};

/// Y = kr R + kg G + kb B;  Cb = (B - Y) cb_scale;  Cr = (R - Y) cr_scale;
/// R = Y + red_cr Cr;  G = Y - green_cb Cb - green_cr Cr;  B = Y + blue_cb Cb.
struct ycbcr_weights
{
    float kr, kg, kb;
    float cb_scale, cr_scale;
    float red_cr, green_cb, green_cr, blue_cb;
};

/// Source: ITU-T H.273, table 4.
ycbcr_weights weights_of(ycbcr_matrix matrix);

/// value = (code - zero) / codes_per_unit. Written codes lie within least..most.
struct code_range
{
    float zero;
    float codes_per_unit;
    float least;
    float most;
};

/// Of luma, and of red, green and blue. Bits are 8..16 for limited ranges, 1..16 for full ones. Source: ITU-T H.273,
/// equations 20 to 31. Limited ranges exclude the codes that ITU-R BT.709 reserves for synchronisation.
code_range luma_range(int bits, bool is_full);
code_range chroma_range(int bits, bool is_full);

/// One axis of a chroma plane relative to the luma plane: 2^log2 pixels for each sample.
struct chroma_axis
{
    unsigned int log2 = 0;
    std::optional<std::size_t> site; ///< 0 or 1, where log2 is 1; none: in the middle of its pixels

    std::size_t samples(std::size_t pixels) const { return (pixels + (std::size_t{1} << log2) - 1) >> log2; }
    bool operator==(const chroma_axis&) const = default;
};

// A sample in the middle of its pixels is decoded as the chroma of each of them, and encoded as their mean. Samples
// that lie on a pixel are interpolated linearly, and encoded with the five weights that exactly undo this: the 5/3
// filter pair of ITU-T T.800, Annex F. So chroma that is not graded comes back unchanged.

/// Weights of the pixels from site - 2 to site + 2.
inline constexpr float taps_on_site[5] = {-0.125f, 0.25f, 0.75f, 0.25f, -0.125f};

/// The samples that a pixel takes its chroma from: one, or the mean of it and the next.
struct chroma_source
{
    std::size_t sample;
    bool with_next;

    bool operator==(const chroma_source&) const = default;
};

/// Both samples lie within the plane: beyond its edges the outermost ones are repeated.
chroma_source chroma_at(const chroma_axis& axis, std::size_t pixel, std::size_t samples);

} // namespace ov1::media
