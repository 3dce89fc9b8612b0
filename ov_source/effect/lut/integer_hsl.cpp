#include "effect/lut/integer_hsl.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

namespace
{

constexpr std::int32_t full_circle = 360'000;
constexpr std::int32_t sector = 60'000;
constexpr std::int32_t full = 100'000;

} // namespace

std::int32_t limited_milli(double v)
{
    if (!(v > 0.0)) // a NaN too
        return 0;
    return v < full ? static_cast<std::int32_t>(v) : full;
}

std::int32_t hue_milli_of(double degrees)
{
    const double wrapped = std::fmod(std::trunc(degrees * 1000.0), full_circle);
    if (!(std::abs(wrapped) < full_circle)) // a NaN or an infinity has no hue
        return 0;
    const auto hue = static_cast<std::int32_t>(wrapped);
    return hue < 0 ? hue + full_circle : hue;
}

// The order of the operations decides the last bits. channel_of (hexcone-inl.h) must give the same floats.
double channel_of_milli(std::int32_t v) { return std::min(v * 256'000.0 / 100'000.0 / 1000.0 / 255.0, 1.0); }

rgb_double rgb_of(const hsl_milli& colour)
{
    // The first remainder is negative for a negative hue.
    const std::int32_t hue = ((colour.hue % full_circle) + full_circle) % full_circle;
    const std::int32_t lightness = std::clamp(colour.lightness, 0, full);
    // Half of the chroma has to fit between the lightness and the nearer of black and white.
    const std::int32_t allowed = full - 2 * std::abs(lightness - full / 2);
    const std::int32_t chroma = std::min(std::clamp(colour.chroma, 0, full), allowed);

    // Of the three channels one is high, one low, and one between them: it rises in even sectors of the hue, else
    // falls.
    // Integer halves: an odd chroma loses one thousandth. 64 bits, because the products below reach 6e9.
    const std::int64_t high = lightness + chroma / 2;
    const std::int64_t low = lightness - chroma / 2;
    const std::int32_t within = hue % sector;
    const bool rising = hue / sector % 2 == 0;
    const std::int64_t middle = ((rising ? high : low) * within + (sector - within) * (rising ? low : high)) / sector;

    const double h = channel_of_milli(static_cast<std::int32_t>(high));
    const double m = channel_of_milli(static_cast<std::int32_t>(middle));
    const double l = channel_of_milli(static_cast<std::int32_t>(low));
    switch (hue / sector)
    {
    case 0:
        return {h, m, l};
    case 1:
        return {m, h, l};
    case 2:
        return {l, h, m};
    case 3:
        return {l, m, h};
    case 4:
        return {m, l, h};
    default:
        return {h, l, m};
    }
}

double hexcone_hue(const rgb_double& colour)
{
    const auto [r, g, b] = colour;
    const double max = std::max({r, g, b});
    const double chroma = max - std::min({r, g, b});
    if (!(chroma > 0.0))
        return 0.0;
    double hue;
    // At a tie red comes first, then green, as in the vector code: the results differ only in rounding.
    if (max == r)
        hue = (g - b) * sector / chroma;
    else if (max == g)
        hue = (b - r) * sector / chroma + 2 * sector;
    else
        hue = (r - g) * sector / chroma + 4 * sector;
    if (hue < 0.0)
        hue += full_circle;
    // A tiny negative hue plus the full circle rounds to the full circle, which is hue 0.
    return hue < full_circle ? hue : hue - full_circle;
}

hexcone hexcone_of(const argb_float& entry)
{
    // In 0..255 first, then in percent: the roundings of this order are part of every grade.
    const rgb_double u8{entry.r * 255.0, entry.g * 255.0, entry.b * 255.0};
    const double max = std::max({u8.r, u8.g, u8.b});
    const double min = std::min({u8.r, u8.g, u8.b});
    return {hexcone_hue(u8), (max - min) * percent_per_u8, (max + min) * half_sum_percent_per_u8};
}

argb_float entry_of(const hexcone& colour, float alpha)
{
    const rgb_double rgb =
        rgb_of({static_cast<std::int32_t>(colour.hue_milli), limited_milli(colour.chroma_percent * 1000.0),
                limited_milli(colour.lightness_percent * 1000.0)});
    return {alpha, static_cast<float>(rgb.r), static_cast<float>(rgb.g), static_cast<float>(rgb.b)};
}

} // namespace ov1
