#include "tools/looks/colour_region.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

namespace
{

// Grid steps between largest and smallest channel over which a move sets in. Lightness sets in more slowly, because the
// eye sees edges in lightness first.
// From one step on: cells on the grey diagonal keep all their corners.
constexpr double grey_steps = 1.0;
constexpr double full_colour_steps = 3.5;
constexpr double full_lightness_steps = 5.0;

constexpr double roll_off = 0.6; ///< share of the room that a move may use (shaping.h)

} // namespace

double colour_region::weight(const oklch& colour) const
{
    // Measured from the middle of the region, so that regions across red work.
    const double middle = (hue.full_from + hue.full_to) / 2.0;
    return hue.weight(middle + hue_difference(middle, colour.hue)) *
           ramp(colour.lightness, lightness_zero, lightness_full) *
           (1.0 - ramp(colour.chroma, chroma_full, chroma_zero));
}

rgb_double moved(const rgb_double& code, const colour_region& region, const colour_move& move)
{
    const oklch from = oklch_of(code);
    const double distance = grid_distance_from_grey(code);
    const double in_region = region.weight(from);
    const double for_colour = in_region * ramp(distance, grey_steps, full_colour_steps);
    const double for_lightness = in_region * ramp(distance, grey_steps, full_lightness_steps);
    if (for_colour == 0.0)
        return code;
    // Black and white have no room for a change of lightness.
    const double room = std::sqrt(std::max(4.0 * from.lightness * (1.0 - from.lightness), 0.0));
    // The ratio is a power of the weight, so that a look and its opposite, with the reciprocal ratio, cancel at every
    // weight.
    const oklch to{from.lightness + for_lightness * move.lightness * room,
                   from.chroma * std::pow(move.chroma_ratio, for_colour), from.hue + for_colour * move.hue};
    return rolled_off(code, code_of(to), roll_off);
}

double mask_weight(const rgb_double& code, const colour_region& region, double full_steps)
{
    return region.weight(oklch_of(code)) * ramp(grid_distance_from_grey(code), grey_steps, full_steps);
}

} // namespace ov1
