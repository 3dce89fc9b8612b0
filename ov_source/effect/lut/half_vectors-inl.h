// Rows of half floats to floats and back. Included once for every instruction set, by the loops over rows. Where the
// instruction set has no conversion, the arithmetic of shared/half_float.h is written in vectors.
// A half has 1 sign bit, 5 exponent bits with a bias of 15, and 10 mantissa bits; a float has 8 exponent bits with a
// bias of 127, and 23 mantissa bits. Halfs below 2^-14 are subnormal: whole multiples of 2^-24. 0x7c00 is infinity.
// IEEE 754.
#if defined(OV1_EFFECT_HALF_VECTORS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef OV1_EFFECT_HALF_VECTORS_INL_H
#undef OV1_EFFECT_HALF_VECTORS_INL_H
#else
#define OV1_EFFECT_HALF_VECTORS_INL_H
#endif

#include "effect/lut/interpolation-inl.h"
#include "shared/half_float.h"

#include <algorithm>

HWY_BEFORE_NAMESPACE();
namespace ov1::row_kernel
{
namespace HWY_NAMESPACE
{

#if HWY_TARGET != HWY_SCALAR && HWY_TARGET != HWY_EMU128

using half_vector_tag = hn::Rebind<hwy::float16_t, wide>;
using half_bits_tag = hn::Rebind<std::uint16_t, wide>;

/// Widened exactly, with the bits of half_to_float.
HWY_INLINE wide_vector widen(const half_bits* in)
{
#if HWY_TARGET == HWY_SSE4 || HWY_TARGET == HWY_SSSE3 // no instruction for it
    // A normal half is a float whose exponent is too small by 127 - 15. A subnormal one is its bits times 2^-24.
    const wide d;
    const hn::RebindToUnsigned<wide> bits;
    const hn::RebindToSigned<wide> whole;
    const auto half = hn::PromoteTo(bits, hn::LoadU(half_bits_tag(), in));
    const auto size = hn::And(half, hn::Set(bits, 0x7fffu));
    const auto sign = hn::ShiftLeft<16>(hn::AndNot(hn::Set(bits, 0x7fffu), half));
    // Lanes cannot branch: all three kinds are computed and one is selected.
    const auto subnormal = hn::Mul(hn::ConvertTo(d, hn::BitCast(whole, size)), hn::Set(d, 0x1p-24f));
    const auto mantissa = hn::ShiftLeft<13>(size);
    const auto normal = hn::Add(mantissa, hn::Set(bits, (127u - 15u) << 23));
    // Infinities and NaN: the largest exponent, with the mantissa kept.
    const auto infinite = hn::Or(mantissa, hn::Set(bits, 0x7f800000u));
    const auto is_normal = hn::Gt(hn::BitCast(whole, size), hn::Set(whole, 0x03ff));
    const auto is_infinite = hn::Gt(hn::BitCast(whole, size), hn::Set(whole, 0x7bff));
    auto value = hn::IfThenElse(hn::RebindMask(bits, is_normal), normal, hn::BitCast(bits, subnormal));
    value = hn::IfThenElse(hn::RebindMask(bits, is_infinite), infinite, value);
    return hn::BitCast(d, hn::Or(sign, value));
#else
    return hn::PromoteTo(wide(), hn::BitCast(half_vector_tag(), hn::LoadU(half_bits_tag(), in)));
#endif
}

/// Rounded to the nearest half, with the bits of float_to_half; values are not NaN.
HWY_INLINE void narrow(wide_vector value, half_bits* out)
{
#if HWY_TARGET == HWY_SSE4 || HWY_TARGET == HWY_SSSE3
    // Rounding a normal one adds just under half a step, and the rest of it if the last bit kept is odd. Adding 0.5 to
    // a subnormal one rounds it in the processor and leaves it in the low bits. 0x477ff000 is the least float that
    // becomes infinite.
    const wide d;
    const hn::RebindToUnsigned<wide> bits;
    const hn::RebindToSigned<wide> whole;
    const auto all = hn::BitCast(bits, value);
    const auto size = hn::And(all, hn::Set(bits, 0x7fffffffu));
    const auto above = [&](std::int32_t least) HWY_ATTR
    { return hn::RebindMask(bits, hn::Gt(hn::BitCast(whole, size), hn::Set(whole, least - 1))); };
    const auto odd = hn::And(hn::ShiftRight<13>(size), hn::Set(bits, 1u));
    // The exponent becomes smaller by 127 - 15, and 0xfff is just under half of the 13 bits that are dropped. The sum
    // wraps for small values, but those take the subnormal result.
    const auto rebased = hn::Add(size, hn::Set(bits, 0xfffu - ((127u - 15u) << 23)));
    const auto normal = hn::ShiftRight<13>(hn::Add(rebased, odd));
    const auto subnormal = hn::Sub(hn::BitCast(bits, hn::Add(hn::BitCast(d, size), hn::Set(d, 0.5f))),
                                   hn::BitCast(bits, hn::Set(d, 0.5f)));
    auto half = hn::IfThenElse(above(0x38800000), normal, subnormal);
    half = hn::IfThenElse(above(0x477ff000), hn::Set(bits, 0x7c00u), half);
    half = hn::Or(half, hn::And(hn::ShiftRight<16>(all), hn::Set(bits, 0x8000u)));
    // The only narrowing instruction saturates signed numbers: the low 16 bits pass when they are sign-extended first.
    const auto extended = hn::ShiftRight<16>(hn::ShiftLeft<16>(hn::BitCast(whole, half)));
    const hn::Rebind<std::int16_t, wide> narrow_whole;
    hn::StoreU(hn::BitCast(half_bits_tag(), hn::DemoteTo(narrow_whole, extended)), half_bits_tag(), out);
#else
    const auto half = hn::DemoteTo(half_vector_tag(), value);
    hn::StoreU(hn::BitCast(half_bits_tag(), half), half_bits_tag(), out);
#endif
}

/// Widens all samples; the last vector may be short. out has the alignment of a vector and room for whole vectors.
HWY_INLINE void widen_all(const half_bits* in, std::size_t samples, float* out)
{
    const wide d;
    std::size_t i = 0;
    for (; i + hn::Lanes(d) <= samples; i += hn::Lanes(d))
        hn::Store(widen(in + i), d, out + i);
    if (i < samples)
    {
        // A copy, so that nothing beyond the row is read; zeros widen to zeros.
        half_bits rest[group_pixels] = {};
        std::copy(in + i, in + samples, rest);
        hn::Store(widen(rest), d, out + i);
    }
}

/// From floats a, r, g, b to halfs R, G, B, A.
HWY_INLINE void narrow_all(const float* in, std::size_t samples, half_bits* out)
{
    const wide d;
    // Within each four lanes: a, r, g, b to r, g, b, a.
    const auto alpha_last = [&](std::size_t i) HWY_ATTR { return hn::Shuffle0321(hn::Load(d, in + i)); };
    std::size_t i = 0;
    for (; i + hn::Lanes(d) <= samples; i += hn::Lanes(d))
        narrow(alpha_last(i), out + i);
    if (i < samples)
    {
        half_bits rest[group_pixels];
        narrow(alpha_last(i), rest);
        std::copy(rest, rest + (samples - i), out + i);
    }
}

#endif

} // namespace HWY_NAMESPACE
} // namespace ov1::row_kernel
HWY_AFTER_NAMESPACE();

#endif
