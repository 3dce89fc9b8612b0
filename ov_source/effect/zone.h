// The three zones of lightness, each graded by a wheel, and their constants.
#pragma once

#include "effect/parameter_table.h"

#include <array>
#include <cstddef>

namespace ov1
{

/// The numbers are those of get_chroma_luma, and the order is that of the parameters.
enum class zone : std::size_t
{
    shadows,
    mids,
    highlights,
};

/// From dark to light.
inline constexpr std::array<zone, 3> all_zones{zone::shadows, zone::mids, zone::highlights};

/// A wheel's controls, in the order in which its parameters are registered.
enum class zone_control : std::size_t
{
    hue,
    chroma,
    range,
    lightness,
    smoothness,
    saturation,
};

/// The same for all grades.
struct zone_constants
{
    double lightness_percent; ///< of the grey that the zone is centred on
    double radius;            ///< of its lut_point, 1..256
    double chroma_scale;      ///< percent of chroma at the wheel's rim
};

constexpr zone_constants constants_of(zone z)
{
    // Shadows, mids, highlights: grades of all versions depend on these numbers.
    constexpr std::array<zone_constants, 3> rows{{{23, 75, 55}, {50, 90, 50}, {78, 90, 44}}};
    return rows[static_cast<std::size_t>(z)];
}

/// The parameter behind a control of a zone's wheel.
constexpr parameter_index zone_parameter(zone z, zone_control control)
{
    return static_cast<parameter_index>(static_cast<std::size_t>(parameter_index::shadows_hue) +
                                        static_cast<std::size_t>(z) * 6 + static_cast<std::size_t>(control));
}

// zone_parameter computes an index: these two fail if the order of the parameters changes.
static_assert(zone_parameter(zone::mids, zone_control::lightness) == parameter_index::mids_lightness);
static_assert(zone_parameter(zone::highlights, zone_control::saturation) == parameter_index::highlights_saturation);

} // namespace ov1
