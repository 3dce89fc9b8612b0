#include "tools/looks/delta_e.h"

#include <cmath>
#include <numbers>

namespace ov1
{

namespace
{

// Names as in the paper. Its primed quantities, computed after the correction of a* for near-greys, have no mark here.

constexpr double degrees = 180.0 / std::numbers::pi;

double sin_of(double angle) { return std::sin(angle / degrees); }
double cos_of(double angle) { return std::cos(angle / degrees); }
double pow_7(double v) { return v * v * v * v * v * v * v; }

/// sqrt(c^7 / (c^7 + 25^7))
double chroma_share(double c) { return std::sqrt(pow_7(c) / (pow_7(c) + 6103515625.0)); }

/// Degrees, 0..360. A grey has hue 0, as the paper asks.
double hue_of(double a, double b)
{
    if (a == 0.0 && b == 0.0)
        return 0.0;
    const double h = std::atan2(b, a) * degrees;
    return h < 0.0 ? h + 360.0 : h;
}

/// From one hue to another the short way round, -180..180 degrees.
double hue_step(double h1, double h2)
{
    const double d = h2 - h1;
    if (std::abs(d) <= 180.0)
        return d;
    return d > 180.0 ? d - 360.0 : d + 360.0;
}

/// The middle of the shorter arc between two hues.
double mean_hue(double h1, double h2)
{
    if (std::abs(h1 - h2) <= 180.0)
        return (h1 + h2) / 2.0;
    return h1 + h2 < 360.0 ? (h1 + h2 + 360.0) / 2.0 : (h1 + h2 - 360.0) / 2.0;
}

/// The rotation term, which corrects differences between blues.
double rotation(double mean_c, double mean_h)
{
    const double from_blue = (mean_h - 275.0) / 25.0;
    return -sin_of(60.0 * std::exp(-from_blue * from_blue)) * 2.0 * chroma_share(mean_c);
}

} // namespace

double delta_e_2000(const cielab& one, const cielab& other)
{
    // g stretches a* of near-greys: the correction that the paper begins with.
    const double g = 0.5 * (1.0 - chroma_share((std::hypot(one.a, one.b) + std::hypot(other.a, other.b)) / 2.0));
    const double a1 = (1.0 + g) * one.a, a2 = (1.0 + g) * other.a;
    const double c1 = std::hypot(a1, one.b), c2 = std::hypot(a2, other.b);
    const double h1 = hue_of(a1, one.b), h2 = hue_of(a2, other.b);
    const bool grey = c1 * c2 == 0.0;

    const double mean_l = (one.lightness + other.lightness) / 2.0;
    const double mean_c = (c1 + c2) / 2.0;
    // With a grey the paper takes the hue of the other colour: the grey's own is 0, so the sum is it.
    const double mean_h = grey ? h1 + h2 : mean_hue(h1, h2);
    const double t = 1.0 - 0.17 * cos_of(mean_h - 30.0) + 0.24 * cos_of(2.0 * mean_h) +
                     0.32 * cos_of(3.0 * mean_h + 6.0) - 0.20 * cos_of(4.0 * mean_h - 63.0);
    const double off_middle = (mean_l - 50.0) * (mean_l - 50.0);

    const double l = (other.lightness - one.lightness) / (1.0 + 0.015 * off_middle / std::sqrt(20.0 + off_middle));
    const double c = (c2 - c1) / (1.0 + 0.045 * mean_c);
    const double h =
        2.0 * std::sqrt(c1 * c2) * sin_of(grey ? 0.0 : hue_step(h1, h2) / 2.0) / (1.0 + 0.015 * mean_c * t);
    return std::sqrt(l * l + c * c + h * h + rotation(mean_c, mean_h) * c * h);
}

double delta_e_2000(const rgb_double& one, const rgb_double& other)
{
    return delta_e_2000(cielab_of(one), cielab_of(other));
}

} // namespace ov1
