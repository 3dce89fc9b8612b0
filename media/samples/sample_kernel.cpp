// Compiled once for every instruction set: foreach_target.h includes this file again for each.
#include "media/samples/sample_kernel.h"

#include "platform/highway_targets.h" // before Highway

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "media/samples/sample_kernel.cpp"
#include <hwy/foreach_target.h> // before highway.h, by its own rule

#include "media/samples/sample_vectors-inl.h"

#include <hwy/highway.h>

#include <algorithm>

HWY_BEFORE_NAMESPACE();
namespace ov1::media::sample_kernel
{
namespace HWY_NAMESPACE
{

using namespace sample_vectors::HWY_NAMESPACE;

// All arithmetic is Mul and Add, never MulAdd: processors without that instruction would round differently. Functions
// that end in _here or in the bits of their codes are exported below, one name for each instance of a template.

/// Stores value(first code) for whole vectors of codes, and once more for a short rest. Codes have no margin, so the
/// rest is read from a copy; rows of floats have one, so a whole vector is stored.
template <class code, class function>
HWY_INLINE void widen_by(const code* codes, std::size_t count, float* values, const function& value)
{
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes)
        hn::StoreU(value(codes + i), floats(), values + i);
    if (i < count)
    {
        code rest[lanes] = {};
        std::copy(codes + i, codes + count, rest);
        hn::StoreU(value(rest), floats(), values + i);
    }
}

/// Multiplies by the reciprocal: a division takes several times as long, and the error is far below a code.
template <class code>
void widen_here(const code* codes, std::size_t count, const code_range& range, float* values)
{
    const floats d;
    const auto zero = hn::Set(d, range.zero), step = hn::Set(d, 1.0f / range.codes_per_unit);
    widen_by(codes, count, values,
             [&](const code* from) HWY_ATTR { return hn::Mul(hn::Sub(load_codes(from), zero), step); });
}

/// A division is rounded once, so the result is the float nearest to the quotient.
template <class code>
void widen_exactly_here(const code* codes, std::size_t count, const code_range& range, float* values)
{
    const floats d;
    const auto zero = hn::Set(d, range.zero), per_unit = hn::Set(d, range.codes_per_unit);
    widen_by(codes, count, values,
             [&](const code* from) HWY_ATTR { return hn::Div(hn::Sub(load_codes(from), zero), per_unit); });
}

template <class code>
void narrow_half_up_here(const float* values, std::size_t count, float largest, code* codes)
{
    const floats d;
    each_vector<lanes>(count, codes,
                       [&](std::size_t i, code* to) HWY_ATTR
                       {
                           // At least 0 first: that also turns a NaN into 0.
                           const auto above = at_least(hn::LoadU(d, values + i), hn::Zero(d));
                           const auto limited = hn::Min(above, hn::Set(d, 1.0f));
                           const auto wanted = hn::Add(hn::Mul(limited, hn::Set(d, largest)), hn::Set(d, 0.5f));
                           const auto whole = hn::ConvertTo(whole_tag(), wanted); // truncates
                           hn::StoreU(hn::DemoteTo(codes_tag<code>(), whole), codes_tag<code>(), to);
                       });
}

/// A template over the limit, so that it costs nothing where it is not wanted.
template <bool is_limited>
void to_pixels_here(const rgb_planes<const float>& row, const float* alpha, std::size_t count, argb_float* pixels)
{
    const floats d;
    const auto colour = [=](const float* from) HWY_ATTR
    {
        const auto value = hn::LoadU(d, from);
        return is_limited ? hn::Min(at_least(value, hn::Zero(d)), hn::Set(d, 1.0f)) : value;
    };
    each_vector<lanes>(count, pixels,
                       [&](std::size_t i, argb_float* to) HWY_ATTR
                       {
                           const auto a = alpha != nullptr ? hn::LoadU(d, alpha + i) : hn::Set(d, 1.0f);
                           hn::StoreInterleaved4(a, colour(row.r + i), colour(row.g + i), colour(row.b + i), d,
                                                 reinterpret_cast<float*>(to));
                       });
}

void to_planes_here(const argb_float* pixels, std::size_t count, const rgb_planes<float>& row, float* alpha)
{
    const floats d;
    const auto move = [&](const argb_float* from, std::size_t i) HWY_ATTR
    {
        vector a, r, g, b;
        hn::LoadInterleaved4(d, reinterpret_cast<const float*>(from), a, r, g, b);
        hn::StoreU(a, d, alpha + i);
        hn::StoreU(r, d, row.r + i);
        hn::StoreU(g, d, row.g + i);
        hn::StoreU(b, d, row.b + i);
    };
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes)
        move(pixels + i, i);
    if (i < count)
    {
        argb_float rest[lanes]; // pixels have no margin; the planes have one
        std::copy(pixels + i, pixels + count, rest);
        move(rest, i);
    }
}

/// code_maker takes no NaN, so it is replaced first.
template <class code>
void narrow_here(const float* values, std::size_t count, const code_range& range, code* codes)
{
    const code_maker maker(range);
    each_vector<lanes>(count, codes,
                       [&](std::size_t i, code* to) HWY_ATTR
                       {
                           const auto value = hn::LoadU(floats(), values + i);
                           const auto number = hn::IfThenElseZero(hn::Eq(value, value), value); // a NaN equals nothing
                           hn::StoreU(hn::DemoteTo(codes_tag<code>(), maker.make(number)), codes_tag<code>(), to);
                       });
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

void widen_exactly_8(const std::uint8_t* codes, std::size_t count, const code_range& range, float* values)
{
    widen_exactly_here(codes, count, range, values);
}

void widen_exactly_16(const std::uint16_t* codes, std::size_t count, const code_range& range, float* values)
{
    widen_exactly_here(codes, count, range, values);
}

void narrow_half_up_8(const float* values, std::size_t count, float largest, std::uint8_t* codes)
{
    narrow_half_up_here(values, count, largest, codes);
}

void narrow_half_up_16(const float* values, std::size_t count, float largest, std::uint16_t* codes)
{
    narrow_half_up_here(values, count, largest, codes);
}

void to_pixels_any(const rgb_planes<const float>& row, const float* alpha, std::size_t count, argb_float* pixels)
{
    to_pixels_here<false>(row, alpha, count, pixels);
}

void to_pixels_limited(const rgb_planes<const float>& row, const float* alpha, std::size_t count, argb_float* pixels)
{
    to_pixels_here<true>(row, alpha, count, pixels);
}

void split_here(const float* row, std::size_t pairs, float* even, float* odd)
{
    const floats d;
    for (std::size_t i = 0; i < pairs; i += lanes)
    {
        vector first, second;
        hn::LoadInterleaved2(d, row + 2 * i, first, second);
        hn::StoreU(first, d, even + i);
        hn::StoreU(second, d, odd + i);
    }
}

void join_here(const float* even, const float* odd, std::size_t pairs, float* row)
{
    const floats d;
    for (std::size_t i = 0; i < pairs; i += lanes)
        hn::StoreInterleaved2(hn::LoadU(d, even + i), hn::LoadU(d, odd + i), d, row + 2 * i);
}

void halve_here(const float* a, const float* b, std::size_t count, float* out)
{
    const floats d;
    for (std::size_t i = 0; i < count; i += lanes)
        hn::StoreU(hn::Mul(hn::Add(hn::LoadU(d, a + i), hn::LoadU(d, b + i)), hn::Set(d, 0.5f)), d, out + i);
}

/// Rows are added in the order given: another order would round differently.
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
HWY_EXPORT(widen_exactly_8);
HWY_EXPORT(widen_exactly_16);
HWY_EXPORT(narrow_half_up_8);
HWY_EXPORT(narrow_half_up_16);
HWY_EXPORT(to_pixels_any);
HWY_EXPORT(to_pixels_limited);
HWY_EXPORT(to_planes_here);
HWY_EXPORT(split_here);
HWY_EXPORT(join_here);
HWY_EXPORT(halve_here);
HWY_EXPORT(mix_here);

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

void widen_exactly(const std::uint8_t* codes, std::size_t count, const code_range& range, float* values)
{
    HWY_DYNAMIC_DISPATCH(widen_exactly_8)(codes, count, range, values);
}

void widen_exactly(const std::uint16_t* codes, std::size_t count, const code_range& range, float* values)
{
    HWY_DYNAMIC_DISPATCH(widen_exactly_16)(codes, count, range, values);
}

void narrow_half_up(const float* values, std::size_t count, float largest, std::uint8_t* codes)
{
    HWY_DYNAMIC_DISPATCH(narrow_half_up_8)(values, count, largest, codes);
}

void narrow_half_up(const float* values, std::size_t count, float largest, std::uint16_t* codes)
{
    HWY_DYNAMIC_DISPATCH(narrow_half_up_16)(values, count, largest, codes);
}

void to_pixels(const rgb_planes<const float>& row, const float* alpha, std::size_t count, argb_float* pixels)
{
    HWY_DYNAMIC_DISPATCH(to_pixels_any)(row, alpha, count, pixels);
}

void to_limited_pixels(const rgb_planes<const float>& row, const float* alpha, std::size_t count, argb_float* pixels)
{
    HWY_DYNAMIC_DISPATCH(to_pixels_limited)(row, alpha, count, pixels);
}

void to_planes(const argb_float* pixels, std::size_t count, const rgb_planes<float>& row, float* alpha)
{
    HWY_DYNAMIC_DISPATCH(to_planes_here)(pixels, count, row, alpha);
}

void split(const float* row, std::size_t pairs, float* even, float* odd)
{
    HWY_DYNAMIC_DISPATCH(split_here)(row, pairs, even, odd);
}

void join(const float* even, const float* odd, std::size_t pairs, float* row)
{
    HWY_DYNAMIC_DISPATCH(join_here)(even, odd, pairs, row);
}

void halve(const float* a, const float* b, std::size_t count, float* out)
{
    HWY_DYNAMIC_DISPATCH(halve_here)(a, b, count, out);
}

void mix(const float* const* rows, const float* weights, std::size_t row_count, std::size_t count, float* out)
{
    HWY_DYNAMIC_DISPATCH(mix_here)(rows, weights, row_count, count, out);
}

} // namespace ov1::media::sample_kernel

#endif
