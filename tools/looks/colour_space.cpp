#include "tools/looks/colour_space.h"

#include <cmath>
#include <numbers>

namespace ov1
{

namespace
{

constexpr double degrees = 180.0 / std::numbers::pi;

/// The function f of CIE 15: a cube root that becomes a straight line near black.
double lab_response(double t)
{
    // At knee^3 value and slope of both parts agree.
    constexpr double knee = 6.0 / 29.0;
    return t > knee * knee * knee ? std::cbrt(t) : t / (3.0 * knee * knee) + 4.0 / 29.0;
}

} // namespace

double linear_of_code(double code)
{
    const double v = std::abs(code);
    return std::copysign(v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4), code);
}

double code_of_linear(double linear)
{
    const double v = std::abs(linear);
    return std::copysign(v <= 0.0031308 ? v * 12.92 : 1.055 * std::pow(v, 1.0 / 2.4) - 0.055, linear);
}

oklab oklab_of(const rgb_double& code)
{
    // The published matrices: linear sRGB to cone responses, their cube roots to OKLab.
    const double r = linear_of_code(code.r), g = linear_of_code(code.g), b = linear_of_code(code.b);
    const double l = std::cbrt(0.4122214708 * r + 0.5363325363 * g + 0.0514459929 * b);
    const double m = std::cbrt(0.2119034982 * r + 0.6806995451 * g + 0.1073969566 * b);
    const double s = std::cbrt(0.0883024619 * r + 0.2817188376 * g + 0.6299787005 * b);
    return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
            1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
            0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

oklab oklab_of(const oklch& colour)
{
    return {colour.lightness, colour.chroma * std::cos(colour.hue / degrees),
            colour.chroma * std::sin(colour.hue / degrees)};
}

oklch oklch_of(const oklab& colour)
{
    const double hue = std::atan2(colour.b, colour.a) * degrees;
    return {colour.lightness, std::hypot(colour.a, colour.b), hue < 0.0 ? hue + 360.0 : hue};
}

oklch oklch_of(const rgb_double& code) { return oklch_of(oklab_of(code)); }

cielab cielab_of(const rgb_double& code)
{
    // Linear sRGB to XYZ, relative to the D65 white (0.95047, 1, 1.08883).
    const double r = linear_of_code(code.r), g = linear_of_code(code.g), b = linear_of_code(code.b);
    const double x = lab_response((0.4124564 * r + 0.3575761 * g + 0.1804375 * b) / 0.95047);
    const double y = lab_response(0.2126729 * r + 0.7151522 * g + 0.0721750 * b);
    const double z = lab_response((0.0193339 * r + 0.1191920 * g + 0.9503041 * b) / 1.08883);
    return {116.0 * y - 16.0, 500.0 * (x - y), 200.0 * (y - z)};
}

rgb_double code_of(const oklab& colour)
{
    // The published inverses of the matrices above.
    const auto cube = [](double v) { return v * v * v; };
    const double l = cube(colour.lightness + 0.3963377774 * colour.a + 0.2158037573 * colour.b);
    const double m = cube(colour.lightness - 0.1055613458 * colour.a - 0.0638541728 * colour.b);
    const double s = cube(colour.lightness - 0.0894841775 * colour.a - 1.2914855480 * colour.b);
    return {code_of_linear(4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s),
            code_of_linear(-1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s),
            code_of_linear(-0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s)};
}

rgb_double code_of(const oklch& colour) { return code_of(oklab_of(colour)); }

double hue_difference(double from, double to) { return std::remainder(to - from, 360.0); }

// Of a grey, OKLab lightness is the cube root of linear light.
double grey_of_lightness(double lightness) { return code_of_linear(lightness * lightness * lightness); }

} // namespace ov1
