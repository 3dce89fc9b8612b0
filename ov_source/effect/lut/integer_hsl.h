// Conversion between RGB and the hexcone model (hue, chroma, lightness) in whole thousandths.
//
//   hue        0..359,999   1/1000 degree, red at 0, green at 120,000
//   chroma     0..100,000   1/1000 percent, largest minus smallest channel
//   lightness  0..100,000   1/1000 percent, mean of largest and smallest channel
#pragma once

#include "shared/argb_float.h"

#include <cstdint>

namespace ov1
{

/// A colour of the hexcone in whole thousandths, ranges as above.
struct hsl_milli
{
    std::int32_t hue = 0;
    std::int32_t chroma = 0;
    std::int32_t lightness = 0;
};

/// Code values, nominally 0..1 where nothing else is said.
struct rgb_double
{
    double r = 0.0;
    double g = 0.0;
    double b = 0.0;
};

inline constexpr double percent_per_u8 = 0.39215686274509803;          ///< 100 / 255
inline constexpr double half_sum_percent_per_u8 = 0.19607843137254902; ///< 50 / 255

/// Truncates to a whole number within 0..100,000; a NaN gives 0.
std::int32_t limited_milli(double v);

/// Degrees as thousandths, wrapped into 0..359,999.
std::int32_t hue_milli_of(double degrees);

/// The code value, 0..1, of a channel of v thousandths of a percent: v scaled by 256 / 100, divided by 255, at most 1.
/// So half lightness comes back as 128 / 255: the scale of the format, kept for old grades.
double channel_of_milli(std::int32_t v);

/// Converts to code values 0..1. A hue outside its range is wrapped, chroma and lightness are limited to theirs, and
/// the chroma to the most that the lightness allows.
rgb_double rgb_of(const hsl_milli& colour);

/// Hue in thousandths of a degree by the hexcone rule, 0 <= hue < 360,000; 0 for greys. Channels in any unit.
double hexcone_hue(const rgb_double& colour);

/// A table entry in the terms of the hexcone, before anything is rounded.
struct hexcone
{
    double hue_milli; ///< 0 <= hue_milli < 360,000
    double chroma_percent;
    double lightness_percent;
};

/// Of an entry whose channels are code values; its alpha is ignored.
hexcone hexcone_of(const argb_float& entry);

/// The entry of a hexcone, rounded to whole thousandths and scaled by rgb_of: entry_of(hexcone_of(c)) is not c.
argb_float entry_of(const hexcone& colour, float alpha);

} // namespace ov1
