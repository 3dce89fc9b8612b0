// Compiled once for every instruction set: foreach_target.h includes this file again for each.
#include "media/sample_kernel.h"

#include "platform/highway_targets.h" // before Highway

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "media/sample_kernel.cpp"
#include <hwy/foreach_target.h> // before highway.h, by its own rule

#include <hwy/highway.h>

#include <algorithm>

HWY_BEFORE_NAMESPACE();
namespace ov1::media::sample_kernel
{
namespace HWY_NAMESPACE
{

namespace hn = hwy::HWY_NAMESPACE;

using floats = hn::CappedTag<float, 8>;
using vector = hn::Vec<floats>;
constexpr std::size_t lanes = hn::MaxLanes(floats());

template <class code>
using codes_tag = hn::Rebind<code, floats>;

template <class code>
HWY_INLINE vector load_codes(const code* from)
{
    const hn::Rebind<std::int32_t, floats> whole;
    return hn::ConvertTo(floats(), hn::PromoteTo(whole, hn::LoadU(codes_tag<code>(), from)));
}

template <class code>
void widen_here(const code* codes, std::size_t count, const code_range& range, float* values)
{
    const floats d;
    const auto zero = hn::Set(d, range.zero), step = hn::Set(d, 1.0f / range.codes_per_unit);
    const auto value = [&](const code* from) HWY_ATTR { return hn::Mul(hn::Sub(load_codes(from), zero), step); };
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes)
        hn::StoreU(value(codes + i), d, values + i);
    if (i < count)
    {
        code rest[lanes] = {};
        std::copy(codes + i, codes + count, rest);
        hn::StoreU(value(rest), d, values + i);
    }
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

template <class code>
void narrow_here(const float* values, std::size_t count, const code_range& range, code* codes)
{
    const floats d;
    const auto zero = hn::Set(d, range.zero), per_unit = hn::Set(d, range.codes_per_unit);
    const auto least = hn::Set(d, range.least), most = hn::Set(d, range.most);
    const auto nothing = hn::Zero(d);
    const auto store = [&](std::size_t i, code* to) HWY_ATTR
    {
        const auto value = hn::LoadU(d, values + i);
        const auto number = hn::IfThenElse(hn::Eq(value, value), value, nothing); // a NaN equals nothing
        const auto wanted = hn::Add(hn::Mul(number, per_unit), zero);
        const auto whole = hn::NearestInt(hn::Min(at_least(wanted, least), most));
        hn::StoreU(hn::DemoteTo(codes_tag<code>(), whole), codes_tag<code>(), to);
    };
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes)
        store(i, codes + i);
    if (i < count)
    {
        code rest[lanes];
        store(i, rest);
        std::copy(rest, rest + (count - i), codes + i);
    }
}

void widen_8(const std::uint8_t* codes, std::size_t count, const code_range& range, float* values)
{
    widen_here(codes, count, range, values);
}

void widen_16(const std::uint16_t* codes, std::size_t count, const code_range& range, float* values)
{
    widen_here(codes, count, range, values);
}

void narrow_8(const float* values, std::size_t count, const code_range& range, std::uint8_t* codes)
{
    narrow_here(values, count, range, codes);
}

void narrow_16(const float* values, std::size_t count, const code_range& range, std::uint16_t* codes)
{
    narrow_here(values, count, range, codes);
}

/// Two vectors of one row from its even and its odd members.
HWY_INLINE void interleave(vector even, vector odd, vector& first, vector& second)
{
#if HWY_TARGET == HWY_SCALAR
    first = even;
    second = odd;
#else
    const floats d;
    const auto lower = hn::InterleaveLower(d, even, odd), upper = hn::InterleaveUpper(d, even, odd);
#if HWY_MAX_BYTES >= 32 && HWY_TARGET != HWY_EMU128
    first = hn::ConcatLowerLower(d, upper, lower);
    second = hn::ConcatUpperUpper(d, upper, lower);
#else
    first = lower;
    second = upper;
#endif
#endif
}

/// What chroma adds to each channel, of the even pixels and of the odd ones.
struct chroma_parts
{
    vector red, green, blue;
};

template <class code>
void shared_to_rgb_here(const shared_source<code>& from, std::size_t pixels, const code_range& luma,
                        const chroma_axis& axis, const ycbcr_weights& weights, const rgb_planes<float>& to)
{
    const floats d;
    const auto zero = hn::Set(d, luma.zero), step = hn::Set(d, 1.0f / luma.codes_per_unit);
    const auto red_cr = hn::Set(d, weights.red_cr), blue_cb = hn::Set(d, weights.blue_cb);
    const auto green_cb = hn::Set(d, -weights.green_cb), green_cr = hn::Set(d, -weights.green_cr);
    const auto half = hn::Set(d, 0.5f);
    const auto parts_at = [&](std::size_t i) HWY_ATTR -> chroma_parts
    {
        const auto cb = hn::LoadU(d, from.cb + i), cr = hn::LoadU(d, from.cr + i);
        return {hn::Mul(red_cr, cr), hn::Add(hn::Mul(green_cb, cb), hn::Mul(green_cr, cr)), hn::Mul(blue_cb, cb)};
    };
    const auto mean = [&](const chroma_parts& a, const chroma_parts& b) HWY_ATTR -> chroma_parts
    {
        return {hn::Mul(hn::Add(a.red, b.red), half), hn::Mul(hn::Add(a.green, b.green), half),
                hn::Mul(hn::Add(a.blue, b.blue), half)};
    };
    const auto add = [&](vector y0, vector y1, vector even, vector odd, float* out) HWY_ATTR
    {
        vector first, second;
        interleave(even, odd, first, second);
        hn::StoreU(hn::Add(y0, first), d, out);
        hn::StoreU(hn::Add(y1, second), d, out + lanes);
    };
    const auto write = [&](const code* codes, std::size_t x) HWY_ATTR
    {
        const auto y0 = hn::Mul(hn::Sub(load_codes(codes), zero), step);
        const auto y1 = hn::Mul(hn::Sub(load_codes(codes + lanes), zero), step);
        const std::size_t i = x / 2;
        chroma_parts even = parts_at(i), odd = even;
        if (axis.site && *axis.site == 0)
            odd = mean(even, parts_at(i + 1));
        else if (axis.site)
            even = mean(parts_at(i - 1), odd);
        add(y0, y1, even.red, odd.red, to.r + x);
        add(y0, y1, even.green, odd.green, to.g + x);
        add(y0, y1, even.blue, odd.blue, to.b + x);
    };
    std::size_t x = 0;
    for (; x + 2 * lanes <= pixels; x += 2 * lanes)
        write(from.luma + x, x);
    if (x < pixels)
    {
        code rest[2 * lanes] = {};
        std::copy(from.luma + x, from.luma + pixels, rest);
        write(rest, x);
    }
}

void shared_to_rgb_8(const shared_source<std::uint8_t>& from, std::size_t pixels, const code_range& luma,
                     const chroma_axis& axis, const ycbcr_weights& weights, const rgb_planes<float>& to)
{
    shared_to_rgb_here(from, pixels, luma, axis, weights, to);
}

void shared_to_rgb_16(const shared_source<std::uint16_t>& from, std::size_t pixels, const code_range& luma,
                      const chroma_axis& axis, const ycbcr_weights& weights, const rgb_planes<float>& to)
{
    shared_to_rgb_here(from, pixels, luma, axis, weights, to);
}

void gather_here(const float* values, std::size_t samples, const chroma_axis& axis, float* out)
{
    const floats d;
    const float* const first = values + axis.site.value_or(0);
    const auto store = [&](std::size_t i) HWY_ATTR
    {
        vector here, next;
        hn::LoadInterleaved2(d, first + 2 * i, here, next);
        if (!axis.site)
            return hn::StoreU(hn::Mul(hn::Add(here, next), hn::Set(d, 0.5f)), d, out + i);
        vector two_before, before, unused, two_after;
        hn::LoadInterleaved2(d, first + 2 * i - 2, two_before, before);
        hn::LoadInterleaved2(d, first + 2 * i + 1, unused, two_after);
        const auto beside = hn::Mul(hn::Add(before, next), hn::Set(d, taps_on_site[1]));
        const auto beyond = hn::Mul(hn::Add(two_before, two_after), hn::Set(d, taps_on_site[0]));
        hn::StoreU(hn::Add(hn::Add(hn::Mul(here, hn::Set(d, taps_on_site[2])), beside), beyond), d, out + i);
    };
    std::size_t i = 0;
    for (; i + lanes <= samples; i += lanes)
        store(i);
    for (; i < samples; ++i)
    {
        const float* here = first + 2 * i;
        if (!axis.site)
            out[i] = (here[0] + here[1]) * 0.5f;
        else
            out[i] = here[0] * taps_on_site[2] + (here[-1] + here[1]) * taps_on_site[1] +
                     (here[-2] + here[2]) * taps_on_site[0];
    }
}

void halve_here(const float* a, const float* b, std::size_t count, float* out)
{
    const floats d;
    for (std::size_t i = 0; i < count; i += lanes)
        hn::StoreU(hn::Mul(hn::Add(hn::LoadU(d, a + i), hn::LoadU(d, b + i)), hn::Set(d, 0.5f)), d, out + i);
}

void mix_here(const float* const* rows, const float* weights, std::size_t row_count, std::size_t count, float* out)
{
    const floats d;
    for (std::size_t i = 0; i < count; i += lanes)
    {
        auto sum = hn::Mul(hn::LoadU(d, rows[0] + i), hn::Set(d, weights[0]));
        for (std::size_t row = 1; row < row_count; ++row)
            sum = hn::Add(sum, hn::Mul(hn::LoadU(d, rows[row] + i), hn::Set(d, weights[row])));
        hn::StoreU(sum, d, out + i);
    }
}

void to_rgb_here(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights)
{
    const floats d;
    const auto red_cr = hn::Set(d, weights.red_cr), blue_cb = hn::Set(d, weights.blue_cb);
    const auto green_cb = hn::Set(d, weights.green_cb), green_cr = hn::Set(d, weights.green_cr);
    for (std::size_t i = 0; i < count; i += lanes)
    {
        const auto luma = hn::LoadU(d, row.g + i), cb = hn::LoadU(d, row.b + i), cr = hn::LoadU(d, row.r + i);
        hn::StoreU(hn::Add(luma, hn::Mul(red_cr, cr)), d, row.r + i);
        hn::StoreU(hn::Sub(hn::Sub(luma, hn::Mul(green_cb, cb)), hn::Mul(green_cr, cr)), d, row.g + i);
        hn::StoreU(hn::Add(luma, hn::Mul(blue_cb, cb)), d, row.b + i);
    }
}

template <class code>
void to_ycbcr_here(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights,
                   const code_range& luma_codes, code* codes)
{
    const floats d;
    const auto kr = hn::Set(d, weights.kr), kg = hn::Set(d, weights.kg), kb = hn::Set(d, weights.kb);
    const auto cb_scale = hn::Set(d, weights.cb_scale), cr_scale = hn::Set(d, weights.cr_scale);
    const auto zero = hn::Set(d, luma_codes.zero), per_unit = hn::Set(d, luma_codes.codes_per_unit);
    const auto limited = [&](const float* from) HWY_ATTR
    { return hn::Min(at_least(hn::LoadU(d, from), hn::Zero(d)), hn::Set(d, 1.0f)); };
    const auto convert = [&](std::size_t i, code* to) HWY_ATTR
    {
        const auto r = limited(row.r + i), g = limited(row.g + i), b = limited(row.b + i);
        const auto luma = hn::Add(hn::Add(hn::Mul(kr, r), hn::Mul(kg, g)), hn::Mul(kb, b));
        hn::StoreU(hn::Mul(hn::Sub(b, luma), cb_scale), d, row.b + i);
        hn::StoreU(hn::Mul(hn::Sub(r, luma), cr_scale), d, row.r + i);
        // Within the range already: the weights' sum is 1, give or take far less than half a code.
        const auto whole = hn::NearestInt(hn::Add(hn::Mul(luma, per_unit), zero));
        hn::StoreU(hn::DemoteTo(codes_tag<code>(), whole), codes_tag<code>(), to);
    };
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes)
        convert(i, codes + i);
    if (i < count)
    {
        code rest[lanes];
        convert(i, rest);
        std::copy(rest, rest + (count - i), codes + i);
    }
}

void to_ycbcr_8(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights, const code_range& luma,
                std::uint8_t* codes)
{
    to_ycbcr_here(row, count, weights, luma, codes);
}

void to_ycbcr_16(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights, const code_range& luma,
                 std::uint16_t* codes)
{
    to_ycbcr_here(row, count, weights, luma, codes);
}

} // namespace HWY_NAMESPACE
} // namespace ov1::media::sample_kernel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace ov1::media::sample_kernel
{

HWY_EXPORT(widen_8);
HWY_EXPORT(widen_16);
HWY_EXPORT(narrow_8);
HWY_EXPORT(narrow_16);
HWY_EXPORT(shared_to_rgb_8);
HWY_EXPORT(shared_to_rgb_16);
HWY_EXPORT(gather_here);
HWY_EXPORT(halve_here);
HWY_EXPORT(mix_here);
HWY_EXPORT(to_rgb_here);
HWY_EXPORT(to_ycbcr_8);
HWY_EXPORT(to_ycbcr_16);

void widen(const std::uint8_t* codes, std::size_t count, const code_range& range, float* values)
{
    HWY_DYNAMIC_DISPATCH(widen_8)(codes, count, range, values);
}

void widen(const std::uint16_t* codes, std::size_t count, const code_range& range, float* values)
{
    HWY_DYNAMIC_DISPATCH(widen_16)(codes, count, range, values);
}

void narrow(const float* values, std::size_t count, const code_range& range, std::uint8_t* codes)
{
    HWY_DYNAMIC_DISPATCH(narrow_8)(values, count, range, codes);
}

void narrow(const float* values, std::size_t count, const code_range& range, std::uint16_t* codes)
{
    HWY_DYNAMIC_DISPATCH(narrow_16)(values, count, range, codes);
}

void shared_to_rgb(const shared_source<std::uint8_t>& from, std::size_t pixels, const code_range& luma,
                   const chroma_axis& axis, const ycbcr_weights& weights, const rgb_planes<float>& to)
{
    HWY_DYNAMIC_DISPATCH(shared_to_rgb_8)(from, pixels, luma, axis, weights, to);
}

void shared_to_rgb(const shared_source<std::uint16_t>& from, std::size_t pixels, const code_range& luma,
                   const chroma_axis& axis, const ycbcr_weights& weights, const rgb_planes<float>& to)
{
    HWY_DYNAMIC_DISPATCH(shared_to_rgb_16)(from, pixels, luma, axis, weights, to);
}

void gather(const float* values, std::size_t samples, const chroma_axis& axis, float* out)
{
    HWY_DYNAMIC_DISPATCH(gather_here)(values, samples, axis, out);
}

void halve(const float* a, const float* b, std::size_t count, float* out)
{
    HWY_DYNAMIC_DISPATCH(halve_here)(a, b, count, out);
}

void mix(const float* const* rows, const float* weights, std::size_t row_count, std::size_t count, float* out)
{
    HWY_DYNAMIC_DISPATCH(mix_here)(rows, weights, row_count, count, out);
}

void to_rgb(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights)
{
    HWY_DYNAMIC_DISPATCH(to_rgb_here)(row, count, weights);
}

void to_ycbcr(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights, const code_range& luma,
              std::uint8_t* codes)
{
    HWY_DYNAMIC_DISPATCH(to_ycbcr_8)(row, count, weights, luma, codes);
}

void to_ycbcr(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights, const code_range& luma,
              std::uint16_t* codes)
{
    HWY_DYNAMIC_DISPATCH(to_ycbcr_16)(row, count, weights, luma, codes);
}

} // namespace ov1::media::sample_kernel

#endif
