// What the loops over samples share: vectors of floats, and codes as such. Included once for every instruction set.
#if defined(OV1_MEDIA_SAMPLE_VECTORS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef OV1_MEDIA_SAMPLE_VECTORS_INL_H
#undef OV1_MEDIA_SAMPLE_VECTORS_INL_H
#else
#define OV1_MEDIA_SAMPLE_VECTORS_INL_H
#endif

#include "media/samples/ycbcr_coding.h"
#include "platform/highway_targets.h" // before Highway

#include <hwy/highway.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

HWY_BEFORE_NAMESPACE();
namespace ov1::media::sample_vectors
{
namespace HWY_NAMESPACE
{

namespace hn = hwy::HWY_NAMESPACE;

// At most 8 lanes, also on processors with 16: `lanes` sizes the copies of short rests.
using floats = hn::CappedTag<float, 8>;
using vector = hn::Vec<floats>;
constexpr std::size_t lanes = hn::MaxLanes(floats());
using whole_tag = hn::RebindToSigned<floats>;

template <class code>
using codes_tag = hn::Rebind<code, floats>;

/// As many codes as there are lanes, from any address, as whole floats.
template <class code>
HWY_INLINE vector load_codes(const code* from)
{
    return hn::ConvertTo(floats(), hn::PromoteTo(whole_tag(), hn::LoadU(codes_tag<code>(), from)));
}

/// x > least ? x : least, a NaN included.
HWY_INLINE vector at_least(vector x, vector least)
{
#if HWY_ARCH_X86 && HWY_TARGET != HWY_SCALAR && HWY_TARGET != HWY_EMU128
    return hn::Max(x, least); // what the instruction is defined as
#else
    return hn::IfThenElse(hn::Gt(x, least), x, least);
#endif
}

/// Calls store(first, to) for whole vectors of codes or pixels, and once more for a short rest, which it writes through
/// a copy: nothing after the last is changed.
template <std::size_t step, class code, class function>
HWY_INLINE void each_vector(std::size_t count, code* codes, const function& store)
{
    std::size_t i = 0;
    for (; i + step <= count; i += step)
        store(i, codes + i);
    if (i < count)
    {
        code rest[step];
        store(i, rest);
        std::copy(rest, rest + (count - i), codes + i);
    }
}

/// The nearest whole number, ties to even, of 0 to 2^22.
HWY_INLINE hn::Vec<whole_tag> rounded(vector x)
{
    // 2^23 more leaves no bits for fractions, and the number in the low ones. NearestInt would look after any float.
    constexpr std::int32_t bits_of_2_23 = 0x4b000000;
    const auto bits = hn::BitCast(whole_tag(), hn::Add(x, hn::Set(floats(), 0x1p23f)));
    return hn::Sub(bits, hn::Set(whole_tag(), bits_of_2_23));
}

/// Values to codes of a range.
class code_maker
{
public:
    explicit HWY_INLINE code_maker(const code_range& range)
        : zero(hn::Set(floats(), range.zero))
        , per_unit(hn::Set(floats(), range.codes_per_unit))
        , least(hn::Set(floats(), range.least))
        , most(hn::Set(floats(), range.most))
    {
    }

    /// The nearest code, limited to the range's. No NaN.
    HWY_INLINE hn::Vec<whole_tag> make(vector value) const
    {
        const auto wanted = hn::Add(hn::Mul(value, per_unit), zero);
        return rounded(hn::Min(at_least(wanted, least), most));
    }

private:
    vector zero, per_unit, least, most;
};

} // namespace HWY_NAMESPACE
} // namespace ov1::media::sample_vectors
HWY_AFTER_NAMESPACE();

#endif
