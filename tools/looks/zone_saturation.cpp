#include "tools/looks/zone_saturation.h"

#include "tools/looks/colour_space.h"
#include "tools/looks/shaping.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

namespace
{

struct zone_weights
{
    double shadows;
    double mids;
    double highlights;
};

/// The weights of the zones at the code value of the grey with the same lightness. They sum to 1.
zone_weights weights_of(const oklch& colour)
{
    const double grey = grey_of_lightness(colour.lightness);
    // 0.50 and 0.78 are the lightnesses of mids and highlights, 0.23 that of shadows (zone.h): each zone has its full
    // weight there.
    const double out_of_shadows = smoothstep(grey, 0.23, 0.50);
    const double into_highlights = smoothstep(grey, 0.50, 0.78);
    return {1.0 - out_of_shadows, out_of_shadows - into_highlights, into_highlights};
}

/// The chroma times 1.6 to the power of the zone's weight: overlapping zones multiply to 1.6.
rgb_double saturated(const rgb_double& code, double zone_weights::* zone)
{
    constexpr double full_ratio = 1.6;
    constexpr double full_steps = 2.0; // grid steps from grey over which the look sets in
    constexpr double roll_off = 0.75;

    oklch colour = oklch_of(code);
    const double weight = weights_of(colour).*zone * ramp(grid_distance_from_grey(code), 0.0, full_steps);
    if (weight == 0.0)
        return code;
    colour.chroma *= std::pow(full_ratio, weight);
    return rolled_off(code, code_of(colour), roll_off);
}

/// The weights are exponents: where zones overlap, each takes its share, and after all three no colour is left.
rgb_double desaturated(const rgb_double& code, double zone_weights::* zone)
{
    constexpr double floor = 0.1; // of f^weight, so that full weight leaves exactly nothing

    oklch colour = oklch_of(code);
    const double weight = weights_of(colour).*zone;
    if (weight == 0.0 || grid_distance_from_grey(code) == 0.0)
        return code;
    colour.chroma *= (std::pow(floor, weight) - floor) / (1.0 - floor);
    const rgb_double to = code_of(colour);
    return {std::clamp(to.r, 0.0, 1.0), std::clamp(to.g, 0.0, 1.0), std::clamp(to.b, 0.0, 1.0)};
}

} // namespace

rgb_double saturation100_schatten(const rgb_double& code) { return saturated(code, &zone_weights::shadows); }
rgb_double saturation_minus100_schatten(const rgb_double& code) { return desaturated(code, &zone_weights::shadows); }
rgb_double saturation100_mitten(const rgb_double& code) { return saturated(code, &zone_weights::mids); }
rgb_double saturation_minus100_mitten(const rgb_double& code) { return desaturated(code, &zone_weights::mids); }
rgb_double saturation100_lichter(const rgb_double& code) { return saturated(code, &zone_weights::highlights); }
rgb_double saturation_minus100_lichter(const rgb_double& code) { return desaturated(code, &zone_weights::highlights); }

} // namespace ov1
