#include "tools/looks/film_contrast.h"

#include <algorithm>

namespace ov1
{

namespace
{

// Measure 3 bounds it: curves of greys keep slopes of 0.5 to 1.6.
constexpr double height = 0.085; ///< of a hump, in code values

/// v^4 (1 - v)^2 scaled to `height` at its maximum, 2/3. Flat at both ends, so that black and white stay.
double upper_hump(double v)
{
    constexpr double peak = (16.0 / 81.0) * (1.0 / 9.0);
    return height / peak * v * v * v * v * (1.0 - v) * (1.0 - v);
}

double lower_hump(double v) { return upper_hump(1.0 - v); }

/// Adds upper and lower times the two humps to a colour.
rgb_double curved(const rgb_double& code, double upper, double lower)
{
    const auto curve = [&](double v) { return v + upper * upper_hump(v) + lower * lower_hump(v); };
    const double max = std::max({code.r, code.g, code.b});
    const double min = std::min({code.r, code.g, code.b});
    const double top = curve(max);
    if (max == min)
        return {top, top, top};
    const double bottom = curve(min);
    // The same share between the two outer channels as before keeps the hexcone hue.
    const auto between = [&](double v) { return bottom + (top - bottom) * ((v - min) / (max - min)); };
    return {between(code.r), between(code.g), between(code.b)};
}

} // namespace

rgb_double film_contrast_highlights_north(const rgb_double& code) { return curved(code, 1.0, 0.0); }
rgb_double filmkontrast_minus100(const rgb_double& code) { return curved(code, -1.0, 1.0); }
rgb_double film_contrast_shadows_south(const rgb_double& code) { return curved(code, 0.0, -1.0); }
rgb_double filmkontrast_100(const rgb_double& code) { return curved(code, 1.0, -1.0); }

} // namespace ov1
