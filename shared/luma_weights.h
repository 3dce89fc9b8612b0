// The weights of red, green and blue in luma, as the standards of video define them.
#pragma once

namespace ov1
{

/// Y = red R + green G + blue B, with a sum of 1. Source: ITU-T H.273, table 4.
struct luma_weights
{
    // Green is not stored, so that the sum is 1.
    double red;
    double blue;

    constexpr double green() const { return 1 - red - blue; }

    /// Colour differences are blue and red less luma, divided by these to lie within -0.5..0.5.
    constexpr double cb_span() const { return 2 * (1 - blue); }
    constexpr double cr_span() const { return 2 * (1 - red); }
};

inline constexpr luma_weights bt601_luma{0.299, 0.114};
inline constexpr luma_weights bt709_luma{0.2126, 0.0722};
inline constexpr luma_weights bt2020_luma{0.2627, 0.0593}; ///< non-constant luminance
inline constexpr luma_weights fcc_luma{0.30, 0.11};
inline constexpr luma_weights smpte240m_luma{0.212, 0.087};

} // namespace ov1
