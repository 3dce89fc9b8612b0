// The colours that looks are made for and measured with: printed patches, and the ranges of real skies, leaves and
// skin.
#pragma once

#include "tools/looks/colour_space.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace ov1
{

/// A colour in code values 0..1.
struct named_colour
{
    std::string_view name;
    rgb_double code;
};

/// The 24 patches of the ColorChecker, averages of measured charts in sRGB. Pascale, "RGB coordinates of the Macbeth
/// ColorChecker" (2006). The last six are greys, measured ones: not exactly neutral.
extern const std::array<named_colour, 24> colour_checker;
inline constexpr std::size_t coloured_patches = 18;

/// The patch with a name, in code values. An unknown name is a broken invariant.
rgb_double patch(std::string_view name);

/// The ten tones of the Monk scale, light to dark. Monk, "The Monk Skin Tone Scale" (2019).
extern const std::array<named_colour, 10> monk_skin_tones;

/// The range of colours that photographs show of a subject, and the patch that represents it.
struct memory_colour
{
    std::string_view patch;
    double hue_from, hue_to; ///< OKLCh, degrees
    double chroma_from, chroma_to;
    double lightness_from, lightness_to;
    /// Patches whose hue is so close that a look may change them.
    std::span<const std::string_view> related;

    /// The colours of a regular lattice through the ranges, as code values; those outside sRGB are left out.
    std::vector<rgb_double> samples() const;
};

extern const memory_colour real_sky;
extern const memory_colour real_greenery;
extern const memory_colour real_skin;

/// The ends of a gradient that must stay smooth; code values are interpolated linearly between them.
struct gradient
{
    std::string_view name;
    rgb_double from, to;
};

extern const std::array<gradient, 6> gradients;

} // namespace ov1
