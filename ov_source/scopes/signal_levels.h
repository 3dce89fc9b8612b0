// Pixels as a scope reads them: 8-bit levels of red, green, blue and luma, and of the two colour differences.
#pragma once

#include "shared/argb_float.h"
#include "shared/luma_weights.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace ov1
{

/// Level i stands for the code values next to i / 255: one bin for each code that an 8-bit screen shows.
inline constexpr std::size_t level_count = 256;
inline constexpr std::size_t last_level = level_count - 1;

/// The weights of BT.709, which screens use, as floats.
inline constexpr auto red_luma = static_cast<float>(bt709_luma.red);
inline constexpr auto green_luma = static_cast<float>(bt709_luma.green());
inline constexpr auto blue_luma = static_cast<float>(bt709_luma.blue);
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

constexpr colour_difference colour_difference_of(float r, float g, float b)
{
    const float y = luma_of(r, g, b);
    return {(b - y) * (1 / cb_span), (r - y) * (1 / cr_span)};
}

/// The channels of a colour difference at luma 0.5, not limited: the inverse of the above.
constexpr argb_float colour_of(const colour_difference& c)
{
    const float r = 0.5f + cr_span * c.cr, b = 0.5f + cb_span * c.cb;
    return {1, r, (0.5f - red_luma * r - blue_luma * b) * (1 / green_luma), b};
}

/// Level of a colour difference of 0; a step of one level is 1 / 255, so that +0.5 is held to the last level.
inline constexpr float difference_centre = 128;

/// Which of the levels are read.
struct signal_selection
{
    bool channels = false;
    bool luma = false;
    bool difference = false;
};

/// Levels of up to most pixels, side by side. What was not selected is undefined.
struct signal_levels
{
    static constexpr std::size_t most = 256;
    using plane = std::array<std::uint32_t, most>;

    plane r;
    plane g;
    plane b;
    plane luma;
    plane difference; ///< Cr's level * level_count + Cb's
};

/// Reads up to signal_levels::most pixels. Channels are limited to 0..1 first, as a screen shows them, and a NaN counts
/// as 0; so what lies outside is counted at level 0 or 255, and luma and colour difference are those of what is shown.
/// Alpha is ignored.
void read_levels(const argb_float* pixels, std::size_t count, const signal_selection& selection, signal_levels& levels);

} // namespace ov1
