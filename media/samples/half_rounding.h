// Rounding to what a half float can hold.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace ov1::media
{

/// The nearest value of IEEE 754 binary16, ties to even; infinity from 65,520 on; a NaN becomes the plain one.
inline float rounded_to_half(float value)
{
    constexpr float smallest_normal = 0x1p-14f;
    constexpr float overflow = 65520.0f;
    const float size = std::fabs(value);
    if (std::isnan(value))
        return std::copysign(std::numeric_limits<float>::quiet_NaN(), value);
    if (size >= overflow)
        return std::copysign(std::numeric_limits<float>::infinity(), value);
    if (size < smallest_normal) // the step is 2^-24 here, which is that of floats from 0.5 on
        return std::copysign(size + 0.5f - 0.5f, value);
    const auto bits = std::bit_cast<std::uint32_t>(value);
    constexpr std::uint32_t dropped = 0x1FFF; // 13 of the 23 bits
    return std::bit_cast<float>((bits + (dropped >> 1) + (bits >> 13 & 1)) & ~dropped);
}

} // namespace ov1::media
