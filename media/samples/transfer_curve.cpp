#include "media/samples/transfer_curve.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

namespace ov1::media
{

namespace
{

constexpr double linear_end = 0.0031308; // of the straight part, in linear light
constexpr double code_end = 0.04045;     // the same place in code values
constexpr double slope = 12.92;

double encoded(double linear)
{
    return linear <= linear_end ? linear * slope : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}
double decoded(double code) { return code <= code_end ? code / slope : std::pow((code + 0.055) / 1.055, 2.4); }

/// A function sampled evenly within each octave from 2^lowest up to 1, straight between the samples: the upper bits of
/// a float are its index, the lower ones its fraction.
class octave_table
{
public:
    octave_table(double (*function)(double), int lowest)
        : first(std::bit_cast<std::uint32_t>(std::ldexp(1.0f, lowest)) >> fraction_bits)
    {
        const std::uint32_t end = std::bit_cast<std::uint32_t>(1.0f) >> fraction_bits;
        for (std::uint32_t i = first; i <= end; ++i)
            samples.push_back(static_cast<float>(function(std::bit_cast<float>(i << fraction_bits))));
    }

    /// From 2^lowest up to, not including, 1.
    float operator()(float x) const
    {
        const auto bits = std::bit_cast<std::uint32_t>(x);
        const std::uint32_t at = (bits >> fraction_bits) - first;
        constexpr float unit = 1.0f / (1 << fraction_bits);
        const float fraction = static_cast<float>(bits & ((1 << fraction_bits) - 1)) * unit;
        return samples[at] + (samples[at + 1] - samples[at]) * fraction;
    }

private:
    static constexpr int fraction_bits = 11; // 4096 samples an octave

    std::uint32_t first;
    std::vector<float> samples;
};

} // namespace

float srgb_encoded(float linear)
{
    static const octave_table table(encoded, -9);
    const float size = std::fabs(linear);
    if (size <= static_cast<float>(linear_end))
        return linear * static_cast<float>(slope);
    if (linear > 0.0f && linear < 1.0f)
        return table(linear);
    return static_cast<float>(std::copysign(encoded(size), linear));
}

float srgb_decoded(float code)
{
    static const octave_table table(decoded, -5);
    const float size = std::fabs(code);
    if (size <= static_cast<float>(code_end))
        return code * static_cast<float>(1 / slope);
    if (code > 0.0f && code < 1.0f)
        return table(code);
    return static_cast<float>(std::copysign(decoded(size), code));
}

} // namespace ov1::media
