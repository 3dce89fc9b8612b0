// The colours that looks are made for and judged by: printed patches, real skies, leaves and faces.
#pragma once

#include "tools/looks/colour_space.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace ov1
{

struct named_colour
{
    std::string_view name;
    rgb_double code;
};

/// The 24 patches of the ColorChecker, averages of measured charts in sRGB. Pascale, "RGB coordinates of the Macbeth
/// ColorChecker" (2006). The last six are greys, measured ones: not exactly neutral.
extern const std::array<named_colour, 24> colour_checker;
inline constexpr std::size_t coloured_patches = 18;

/// The patch of a name; the program ends where there is none.
rgb_double patch(std::string_view name);

/// The ten tones of the Monk scale, light to dark. Monk, "The Monk Skin Tone Scale" (2019).
extern const std::array<named_colour, 10> monk_skin_tones;

/// What photographs show of a thing, and the patch that stands for it.
struct memory_colour
{
    std::string_view patch;
    double hue_from, hue_to; ///< OKLCh, degrees
    double chroma_from, chroma_to;
    double lightness_from, lightness_to;
    /// Patches too near in hue for a look to leave them alone.
    std::span<const std::string_view> kin;

    /// The colours of an even lattice through the ranges that lie within sRGB, in code values.
    std::vector<rgb_double> samples() const;
};

extern const memory_colour real_sky;
extern const memory_colour real_greenery;
extern const memory_colour real_skin;

/// Both ends of a run of colours that must stay smooth; between them code values change evenly.
struct gradient
{
    std::string_view name;
    rgb_double from, to;
};

extern const std::array<gradient, 6> gradients;

} // namespace ov1
