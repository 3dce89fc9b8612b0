// Converts pixels to the 8-bit levels that scopes count: red, green, blue, luma and the two colour differences.
#pragma once

#include "shared/argb_float.h"
#include "shared/luma_weights.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace ov1
{

/// Level i holds the code values nearest to i / 255: one bin per code of an 8-bit screen.
inline constexpr std::size_t level_count = 256;
inline constexpr std::size_t last_level = level_count - 1;

/// The weights of BT.709, which screens use, as floats.
inline constexpr auto red_luma = static_cast<float>(bt709_luma.red);
inline constexpr auto green_luma = static_cast<float>(bt709_luma.green());
inline constexpr auto blue_luma = static_cast<float>(bt709_luma.blue);
/// The spans that scale blue and red less luma to -0.5..0.5.
inline constexpr auto cb_span = static_cast<float>(bt709_luma.cb_span());
inline constexpr auto cr_span = static_cast<float>(bt709_luma.cr_span());

/// BT.709's luma of display-referred code values, 0..1 for channels in 0..1. ITU-R BT.709-6, 3.2.
constexpr float luma_of(float r, float g, float b) { return red_luma * r + green_luma * g + blue_luma * b; }

/// BT.709's colour differences, each -0.5..0.5 for channels in 0..1. ITU-R BT.709-6, 3.3.
struct colour_difference
{
    float cb = 0;
    float cr = 0;
};

/// Of display-referred code values, like luma_of.
constexpr colour_difference colour_difference_of(float r, float g, float b)
{
    const float y = luma_of(r, g, b);
    return {(b - y) * (1 / cb_span), (r - y) * (1 / cr_span)};
}

/// The inverse at luma 0.5: the channels of a colour difference, not clamped.
constexpr argb_float colour_of(const colour_difference& c)
{
    const float r = 0.5f + cr_span * c.cr, b = 0.5f + cb_span * c.cb;
    return {1, r, (0.5f - red_luma * r - blue_luma * b) * (1 / green_luma), b};
}

/// The level of a colour difference of 0. One level is 1 / 255, so that +0.5 is clamped to the last level.
inline constexpr float difference_centre = 128;

/// Which levels are computed.
struct signal_selection
{
    bool channels = false;
    bool luma = false;
    bool difference = false;
};

/// Levels of up to `most` pixels, one array per signal. Signals that were not selected are undefined.
struct signal_levels
{
    static constexpr std::size_t most = 256;
    using plane = std::array<std::uint32_t, most>;

    /// Levels are 0..255; 32 bits, because they are used as indices of bins.
    plane r;
    plane g;
    plane b;
    plane luma;
    plane difference; ///< Cr's level * level_count + Cb's
};

/// Converts up to signal_levels::most pixels. Channels are first clamped to 0..1, as a screen clamps them, and a NaN
/// becomes 0: values outside are counted at level 0 or 255, and luma and colour differences are those of the clamped
/// channels. Alpha is ignored.
void read_levels(const argb_float* pixels, std::size_t count, const signal_selection& selection, signal_levels& levels);

} // namespace ov1
