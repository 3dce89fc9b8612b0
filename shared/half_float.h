// IEEE 754 half floats as 16 bits.
#pragma once

#include <bit>
#include <cstdint>

namespace ov1
{

/// The bits of a half float: 1 of sign, 5 of exponent, 10 of mantissa.
using half_bits = std::uint16_t;

/// Exact. A NaN stays a NaN.
constexpr float half_to_float(half_bits half)
{
    // The size is the half without its sign. Its conversion does not depend on the sign.
    const std::uint32_t sign = (half & 0x8000u) << 16;
    const std::uint32_t size = half & 0x7fffu;
    std::uint32_t bits;
    if (size < 0x0400) // subnormal: a multiple of 2^-24
        bits = std::bit_cast<std::uint32_t>(static_cast<float>(size) * 0x1p-24f);
    // normal: the same mantissa, the exponent with the bias of a float
    else if (size < 0x7c00)
        bits = (size << 13) + ((127 - 15) << 23);
    // infinity or NaN: the largest exponent
    else
        bits = 0x7f800000 | size << 13;
    return std::bit_cast<float>(sign | bits);
}

/// The nearest half, ties to even; infinity from 65,520 on. A NaN becomes a quiet NaN with the upper bits of its
/// mantissa, as processors convert it.
constexpr half_bits float_to_half(float value)
{
    const auto bits = std::bit_cast<std::uint32_t>(value);
    const std::uint32_t size = bits & 0x7fffffff;
    std::uint32_t half;
    // NaN: 0x7e00 has the quiet bit set
    if (size > 0x7f800000)
        half = 0x7e00 | (size >> 13 & 0x3ff);
    else if (size >= 0x477ff000) // 65,520
        half = 0x7c00;
    else if (size < 0x38800000) // below 2^-14: the floats from 0.5 on have the step of these halfs, 2^-24
        half = std::bit_cast<std::uint32_t>(std::bit_cast<float>(size) + 0.5f) - 0x3f000000;
    else
        // Adds a little less than half a step, or exactly half if the last kept bit is odd: ties go to even. A carry
        // into the exponent gives the next power of two, as it should.
        half = (size - ((127 - 15) << 23) + 0xfff + (size >> 13 & 1)) >> 13;
    return static_cast<half_bits>((bits >> 16 & 0x8000) | half);
}

} // namespace ov1
