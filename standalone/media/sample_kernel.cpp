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

using floats = hn::CappedTag<float, 16>;
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

/// Pairs of pixels, each from the samples that first and second give.
template <class function>
HWY_INLINE void write_pairs(std::size_t pixels, float* values, const function& pair)
{
    const floats d;
    std::size_t i = 0;
    for (; 2 * i + 2 * lanes <= pixels; i += lanes)
    {
        vector first, second;
        pair(i, first, second);
        hn::StoreInterleaved2(first, second, d, values + 2 * i);
    }
    if (2 * i < pixels)
    {
        vector first, second;
        pair(i, first, second);
        float rest[2 * lanes];
        hn::StoreInterleaved2(first, second, d, rest);
        std::copy(rest, rest + (pixels - 2 * i), values + 2 * i);
    }
}

void spread_here(const float* samples, std::size_t pixels, const chroma_axis& axis, float* values)
{
    const floats d;
    const auto half = hn::Set(d, 0.5f);
    const auto at = [&](const float* from) HWY_ATTR { return hn::LoadU(d, from); };
    const auto mean = [&](vector a, vector b) HWY_ATTR { return hn::Mul(hn::Add(a, b), half); };
    if (!axis.site)
        write_pairs(pixels, values,
                    [&](std::size_t i, vector& first, vector& second) HWY_ATTR { first = second = at(samples + i); });
    else if (*axis.site == 0)
        write_pairs(pixels, values,
                    [&](std::size_t i, vector& first, vector& second) HWY_ATTR
                    {
                        first = at(samples + i);
                        second = mean(first, at(samples + i + 1));
                    });
    else
        write_pairs(pixels, values,
                    [&](std::size_t i, vector& first, vector& second) HWY_ATTR
                    {
                        second = at(samples + i);
                        first = mean(at(samples + i - 1), second);
                    });
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

void to_ycbcr_here(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights)
{
    const floats d;
    const auto kr = hn::Set(d, weights.kr), kg = hn::Set(d, weights.kg), kb = hn::Set(d, weights.kb);
    const auto cb_scale = hn::Set(d, weights.cb_scale), cr_scale = hn::Set(d, weights.cr_scale);
    const auto limited = [&](const float* from) HWY_ATTR
    { return hn::Min(at_least(hn::LoadU(d, from), hn::Zero(d)), hn::Set(d, 1.0f)); };
    for (std::size_t i = 0; i < count; i += lanes)
    {
        const auto r = limited(row.r + i), g = limited(row.g + i), b = limited(row.b + i);
        const auto luma = hn::Add(hn::Add(hn::Mul(kr, r), hn::Mul(kg, g)), hn::Mul(kb, b));
        hn::StoreU(luma, d, row.g + i);
        hn::StoreU(hn::Mul(hn::Sub(b, luma), cb_scale), d, row.b + i);
        hn::StoreU(hn::Mul(hn::Sub(r, luma), cr_scale), d, row.r + i);
    }
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
HWY_EXPORT(spread_here);
HWY_EXPORT(gather_here);
HWY_EXPORT(halve_here);
HWY_EXPORT(mix_here);
HWY_EXPORT(to_rgb_here);
HWY_EXPORT(to_ycbcr_here);

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

void spread(const float* samples, std::size_t pixels, const chroma_axis& axis, float* values)
{
    HWY_DYNAMIC_DISPATCH(spread_here)(samples, pixels, axis, values);
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

void to_ycbcr(const rgb_planes<float>& row, std::size_t count, const ycbcr_weights& weights)
{
    HWY_DYNAMIC_DISPATCH(to_ycbcr_here)(row, count, weights);
}

} // namespace ov1::media::sample_kernel

#endif
