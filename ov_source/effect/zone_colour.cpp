#include "effect/zone_colour.h"

#include <algorithm>

namespace ov1
{

namespace
{

constexpr double range_reach = 10.0;     ///< percent of lightness that Range moves the zone by, up or down
constexpr double lightness_reach = 20.0; ///< percent of lightness that Lightness moves the colour by, up or down

/// The control's value as a share of its maximum, times reach.
double scaled(const grade_settings& settings, zone z, zone_control control, double reach)
{
    const parameter_index i = zone_parameter(z, control);
    return settings.value(i) * reach / settings.max(i);
}

} // namespace

double base_luma(const grade_settings& settings, zone z)
{
    return constants_of(z).lightness_percent + scaled(settings, z, zone_control::range, range_reach);
}

chroma_luma chroma_luma_of(const grade_settings& settings, zone z)
{
    return {scaled(settings, z, zone_control::chroma, constants_of(z).chroma_scale),
            base_luma(settings, z) + scaled(settings, z, zone_control::lightness, lightness_reach)};
}

double coupled_chroma(const grade_settings& settings, zone z, double last_chroma)
{
    const double luma = chroma_luma_of(settings, z).luma;
    // In HSL a colour has room for twice the distance of its lightness from black or white, whichever is nearer.
    const double room = luma <= 50.0 ? luma : 100.0 - luma;
    // At the maximum of Chroma, the rim of the wheel, the colour has chroma_scale percent.
    const double max = settings.max(zone_parameter(z, zone_control::chroma));
    return std::min(2.0 * room * max / constants_of(z).chroma_scale, last_chroma);
}

double coupled_lightness(const grade_settings& settings, zone z, double last_lightness)
{
    // Half of the chroma has to fit on each side of the lightness.
    const double half_chroma = chroma_luma_of(settings, z).chroma / 2.0;
    const double base = base_luma(settings, z);
    const double max = settings.max(zone_parameter(z, zone_control::lightness));
    // Without a limit first: where the user wants the luma.
    const double wanted = base + last_lightness * lightness_reach / max;
    const double luma = std::clamp(wanted, half_chroma, 100.0 - half_chroma);
    return (luma - base) * max / lightness_reach;
}

} // namespace ov1
