// Compiled once for every instruction set: foreach_target.h includes this file again for each.
#include "media/samples/ycbcr_kernel.h"

#include "platform/highway_targets.h" // before Highway

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "media/samples/ycbcr_kernel.cpp"
#include <hwy/foreach_target.h> // before highway.h, by its own rule

#include "media/samples/sample_vectors-inl.h"

#include <hwy/highway.h>

#include <algorithm>

HWY_BEFORE_NAMESPACE();
namespace ov1::media::ycbcr_kernel
{
namespace HWY_NAMESPACE
{

using namespace sample_vectors::HWY_NAMESPACE;

// All arithmetic is Mul and Add, never MulAdd: processors without that instruction would round differently.

/// The codes of two vectors of pixels, those at even places and those at odd ones.
struct code_pairs
{
    hn::Vec<whole_tag> even;
    hn::Vec<whole_tag> odd;
};

// Deinterleaving luma codes: load_pairs reads 2 * lanes codes, store_pairs writes as many.

#if HWY_TARGET == HWY_SCALAR // one lane: a pair is two single codes

template <class code>
HWY_INLINE code_pairs load_pairs(const code* from)
{
    return {hn::Set(whole_tag(), from[0]), hn::Set(whole_tag(), from[1])};
}

template <class code>
HWY_INLINE void store_pairs(const code_pairs& codes, code* to)
{
    to[0] = static_cast<code>(hn::GetLane(codes.even));
    to[1] = static_cast<code>(hn::GetLane(codes.odd));
}

#else

// Two neighbouring codes are one number of twice their bits, the even one below.

HWY_INLINE code_pairs load_pairs(const std::uint16_t* from)
{
    const hn::RebindToUnsigned<floats> pair;
    const hn::Repartition<std::uint16_t, decltype(pair)> single;
    const auto pairs = hn::BitCast(pair, hn::LoadU(single, from));
    return {hn::BitCast(whole_tag(), hn::And(pairs, hn::Set(pair, 0xffffu))),
            hn::BitCast(whole_tag(), hn::ShiftRight<16>(pairs))};
}

HWY_INLINE code_pairs load_pairs(const std::uint8_t* from)
{
    const hn::Rebind<std::uint16_t, floats> pair;
    const hn::Repartition<std::uint8_t, decltype(pair)> single;
    const auto pairs = hn::PromoteTo(whole_tag(), hn::BitCast(pair, hn::LoadU(single, from)));
    return {hn::And(pairs, hn::Set(whole_tag(), 0xff)), hn::ShiftRight<8>(pairs)};
}

HWY_INLINE void store_pairs(const code_pairs& codes, std::uint16_t* to)
{
    const hn::Repartition<std::uint16_t, whole_tag> single;
    hn::StoreU(hn::BitCast(single, hn::Or(codes.even, hn::ShiftLeft<16>(codes.odd))), single, to);
}

HWY_INLINE void store_pairs(const code_pairs& codes, std::uint8_t* to)
{
    const hn::Rebind<std::uint16_t, floats> pair;
    const hn::Repartition<std::uint8_t, decltype(pair)> single;
    const auto pairs = hn::DemoteTo(pair, hn::Or(codes.even, hn::ShiftLeft<8>(codes.odd)));
    hn::StoreU(hn::BitCast(single, pairs), single, to);
}

#endif

/// What chroma adds to the channels of a vector of pixels.
struct chroma_parts
{
    vector red, green, blue;
};

enum class chroma_place
{
    between, ///< the two pixels
    on_even,
    on_odd,
};

/// A template over the place, so that the loop has no branch.
template <chroma_place place, class code>
void placed_to_rgb(shared_source<code> from, std::size_t pixels, const code_range& luma, const ycbcr_weights& weights,
                   pixel_pairs to)
{
    const floats d;
    const auto zero = hn::Set(d, luma.zero), step = hn::Set(d, 1.0f / luma.codes_per_unit);
    const auto red_cr = hn::Set(d, weights.red_cr), blue_cb = hn::Set(d, weights.blue_cb);
    // With the signs in the weights, luma is added to all three channels alike.
    const auto green_cb = hn::Set(d, -weights.green_cb), green_cr = hn::Set(d, -weights.green_cr);
    const auto parts_of = [&](vector cb, vector cr) HWY_ATTR -> chroma_parts
    { return {hn::Mul(red_cr, cr), hn::Add(hn::Mul(green_cb, cb), hn::Mul(green_cr, cr)), hn::Mul(blue_cb, cb)}; };
    const auto add =
        [&](hn::Vec<whole_tag> codes, const chroma_parts& parts, const rgb_planes<float>& out, std::size_t i) HWY_ATTR
    {
        const auto y = hn::Mul(hn::Sub(hn::ConvertTo(d, codes), zero), step);
        hn::StoreU(hn::Add(y, parts.red), d, out.r + i);
        hn::StoreU(hn::Add(y, parts.green), d, out.g + i);
        hn::StoreU(hn::Add(y, parts.blue), d, out.b + i);
    };
    const auto mean = [&](vector a, vector b) HWY_ATTR { return hn::Mul(hn::Add(a, b), hn::Set(d, 0.5f)); };
    const auto write = [&](const code* codes, std::size_t i) HWY_ATTR
    {
        const code_pairs pairs = load_pairs(codes);
        const auto cb = hn::LoadU(d, from.cb + i), cr = hn::LoadU(d, from.cr + i);
        const chroma_parts on = parts_of(cb, cr);
        chroma_parts even = on, odd = on;
        // Pixels between two samples take the mean of both.
        if constexpr (place == chroma_place::on_even)
            odd = parts_of(mean(cb, hn::LoadU(d, from.cb + i + 1)), mean(cr, hn::LoadU(d, from.cr + i + 1)));
        if constexpr (place == chroma_place::on_odd)
            even = parts_of(mean(cb, hn::LoadU(d, from.cb + i - 1)), mean(cr, hn::LoadU(d, from.cr + i - 1)));
        add(pairs.even, even, to.even, i);
        add(pairs.odd, odd, to.odd, i);
    };
    std::size_t x = 0;
    for (; x + 2 * lanes <= pixels; x += 2 * lanes)
        write(from.luma + x, x / 2);
    if (x < pixels)
    {
        // Codes have no margin: a whole vector would be read beyond the plane's memory. Floats have one.
        code rest[2 * lanes] = {};
        std::copy(from.luma + x, from.luma + pixels, rest);
        write(rest, x / 2);
    }
}

template <class code>
void shared_to_rgb_here(const shared_source<code>& from, std::size_t pixels, const code_range& luma,
                        const chroma_axis& axis, const ycbcr_weights& weights, const pixel_pairs& to)
{
    if (!axis.site)
        placed_to_rgb<chroma_place::between>(from, pixels, luma, weights, to);
    else if (*axis.site == 0)
        placed_to_rgb<chroma_place::on_even>(from, pixels, luma, weights, to);
    else
        placed_to_rgb<chroma_place::on_odd>(from, pixels, luma, weights, to);
}

// HWY_EXPORT takes names of functions, so every instance of a template gets one: _8 and _16 by the bits of its codes.

void shared_to_rgb_8(const shared_source<std::uint8_t>& from, std::size_t pixels, const code_range& luma,
                     const chroma_axis& axis, const ycbcr_weights& weights, const pixel_pairs& to)
{
    shared_to_rgb_here(from, pixels, luma, axis, weights, to);
}

void shared_to_rgb_16(const shared_source<std::uint16_t>& from, std::size_t pixels, const code_range& luma,
                      const chroma_axis& axis, const ycbcr_weights& weights, const pixel_pairs& to)
{
    shared_to_rgb_here(from, pixels, luma, axis, weights, to);
}

/// Chroma samples of rows of pixel pairs, a vector of them at a time.
template <chroma_place place>
struct gatherer
{
    const float* even;
    const float* odd;

    HWY_INLINE vector at(std::size_t i) const
    {
        const floats d;
        if constexpr (place == chroma_place::between)
            return hn::Mul(hn::Add(hn::LoadU(d, even + i), hn::LoadU(d, odd + i)), hn::Set(d, 0.5f));
        // `on` has the pixels that samples lie on. before[i] and before[i + 1] are the pixels on either side of on[i].
        const float* const on = place == chroma_place::on_even ? even : odd;
        const float* const before = place == chroma_place::on_even ? odd - 1 : even;
        // The five taps are symmetric: pixels at the same distance are added first and multiplied once.
        const auto here = hn::Mul(hn::LoadU(d, on + i), hn::Set(d, taps_on_site[2]));
        const auto beside = hn::Add(hn::LoadU(d, before + i), hn::LoadU(d, before + i + 1));
        const auto beyond = hn::Add(hn::LoadU(d, on + i - 1), hn::LoadU(d, on + i + 1));
        return hn::Add(hn::Add(here, hn::Mul(beside, hn::Set(d, taps_on_site[1]))),
                       hn::Mul(beyond, hn::Set(d, taps_on_site[0])));
    }
};

/// Calls take with the gatherer for the axis.
template <class function>
HWY_INLINE void gather_by(const float* even, const float* odd, const chroma_axis& axis, const function& take)
{
    if (!axis.site)
        take(gatherer<chroma_place::between>{even, odd});
    else if (*axis.site == 0)
        take(gatherer<chroma_place::on_even>{even, odd});
    else
        take(gatherer<chroma_place::on_odd>{even, odd});
}

/// Rows of samples have margins, so the last vector is stored whole.
void gather_here(const float* even, const float* odd, std::size_t samples, const chroma_axis& axis, float* out)
{
    gather_by(even, odd, axis,
              [=](const auto& gathered) HWY_ATTR
              {
                  for (std::size_t i = 0; i < samples; i += lanes)
                      hn::StoreU(gathered.at(i), floats(), out + i);
              });
}

/// From floats to codes without a row of samples in between; codes have no margin, so the rest goes through a copy.
template <class code>
void gather_codes_here(const float* even, const float* odd, std::size_t samples, const chroma_axis& axis,
                       const code_range& range, code* codes)
{
    const code_maker maker(range);
    gather_by(
        even, odd, axis,
        [&](const auto& gathered) HWY_ATTR
        {
            each_vector<lanes>(
                samples, codes, [&](std::size_t i, code* to) HWY_ATTR
                { hn::StoreU(hn::DemoteTo(codes_tag<code>(), maker.make(gathered.at(i))), codes_tag<code>(), to); });
        });
}

void gather_8(const float* even, const float* odd, std::size_t samples, const chroma_axis& axis,
              const code_range& range, std::uint8_t* codes)
{
    gather_codes_here(even, odd, samples, axis, range, codes);
}

void gather_16(const float* even, const float* odd, std::size_t samples, const chroma_axis& axis,
               const code_range& range, std::uint16_t* codes)
{
    gather_codes_here(even, odd, samples, axis, range, codes);
}

/// R = Y + red_cr Cr;  G = Y - green_cb Cb - green_cr Cr;  B = Y + blue_cb Cb.
void to_rgb_here(rgb_planes<float> row, std::size_t count, const ycbcr_weights& weights)
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

/// Vectors of red, green and blue to luma codes, and in place to chroma: Y = kr R + kg G + kb B, Cb = (B - Y) cb_scale,
/// Cr = (R - Y) cr_scale.
class ycbcr_maker
{
public:
    HWY_INLINE ycbcr_maker(const ycbcr_weights& weights, const code_range& luma)
        : kr(hn::Set(floats(), weights.kr))
        , kg(hn::Set(floats(), weights.kg))
        , kb(hn::Set(floats(), weights.kb))
        , cb_scale(hn::Set(floats(), weights.cb_scale))
        , cr_scale(hn::Set(floats(), weights.cr_scale))
        , zero(hn::Set(floats(), luma.zero))
        , per_unit(hn::Set(floats(), luma.codes_per_unit))
    {
    }

    HWY_INLINE hn::Vec<whole_tag> make(const rgb_planes<float>& row, std::size_t i) const
    {
        const floats d;
        const auto r = limited(row.r + i), g = limited(row.g + i), b = limited(row.b + i);
        const auto luma = hn::Add(hn::Add(hn::Mul(kr, r), hn::Mul(kg, g)), hn::Mul(kb, b));
        hn::StoreU(hn::Mul(hn::Sub(b, luma), cb_scale), d, row.b + i);
        hn::StoreU(hn::Mul(hn::Sub(r, luma), cr_scale), d, row.r + i);
        // Within the range already: the weights' sum is 1, give or take far less than half a code.
        return rounded(hn::Add(hn::Mul(luma, per_unit), zero));
    }

private:
    /// At least 0 first: that also turns a NaN into 0.
    static HWY_INLINE vector limited(const float* from)
    {
        return hn::Min(at_least(hn::LoadU(floats(), from), hn::Zero(floats())), hn::Set(floats(), 1.0f));
    }

    vector kr, kg, kb, cb_scale, cr_scale, zero, per_unit;
};

template <class code>
void to_ycbcr_here(rgb_planes<float> row, std::size_t count, const ycbcr_weights& weights, const code_range& luma,
                   code* codes)
{
    const ycbcr_maker maker(weights, luma);
    each_vector<lanes>(count, codes, [&](std::size_t i, code* to) HWY_ATTR
                       { hn::StoreU(hn::DemoteTo(codes_tag<code>(), maker.make(row, i)), codes_tag<code>(), to); });
}

template <class code>
void pairs_to_ycbcr_here(pixel_pairs row, std::size_t pixels, const ycbcr_weights& weights, const code_range& luma,
                         code* codes)
{
    const ycbcr_maker maker(weights, luma);
    each_vector<2 * lanes>(pixels, codes, [&](std::size_t x, code* to) HWY_ATTR
                           { store_pairs({maker.make(row.even, x / 2), maker.make(row.odd, x / 2)}, to); });
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

void pairs_to_ycbcr_8(const pixel_pairs& row, std::size_t pixels, const ycbcr_weights& weights, const code_range& luma,
                      std::uint8_t* codes)
{
    pairs_to_ycbcr_here(row, pixels, weights, luma, codes);
}

void pairs_to_ycbcr_16(const pixel_pairs& row, std::size_t pixels, const ycbcr_weights& weights, const code_range& luma,
                       std::uint16_t* codes)
{
    pairs_to_ycbcr_here(row, pixels, weights, luma, codes);
}

} // namespace HWY_NAMESPACE
} // namespace ov1::media::ycbcr_kernel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace ov1::media::ycbcr_kernel
{

HWY_EXPORT(shared_to_rgb_8);
HWY_EXPORT(shared_to_rgb_16);
HWY_EXPORT(gather_here);
HWY_EXPORT(gather_8);
HWY_EXPORT(gather_16);
HWY_EXPORT(to_rgb_here);
HWY_EXPORT(to_ycbcr_8);
HWY_EXPORT(to_ycbcr_16);
HWY_EXPORT(pairs_to_ycbcr_8);
HWY_EXPORT(pairs_to_ycbcr_16);

void shared_to_rgb(const shared_source<std::uint8_t>& from, std::size_t pixels, const code_range& luma,
                   const chroma_axis& axis, const ycbcr_weights& weights, const pixel_pairs& to)
{
    HWY_DYNAMIC_DISPATCH(shared_to_rgb_8)(from, pixels, luma, axis, weights, to);
}

void shared_to_rgb(const shared_source<std::uint16_t>& from, std::size_t pixels, const code_range& luma,
                   const chroma_axis& axis, const ycbcr_weights& weights, const pixel_pairs& to)
{
    HWY_DYNAMIC_DISPATCH(shared_to_rgb_16)(from, pixels, luma, axis, weights, to);
}

void gather(const float* even, const float* odd, std::size_t samples, const chroma_axis& axis, float* out)
{
    HWY_DYNAMIC_DISPATCH(gather_here)(even, odd, samples, axis, out);
}

void gather(const float* even, const float* odd, std::size_t samples, const chroma_axis& axis, const code_range& range,
            std::uint8_t* codes)
{
    HWY_DYNAMIC_DISPATCH(gather_8)(even, odd, samples, axis, range, codes);
}

void gather(const float* even, const float* odd, std::size_t samples, const chroma_axis& axis, const code_range& range,
            std::uint16_t* codes)
{
    HWY_DYNAMIC_DISPATCH(gather_16)(even, odd, samples, axis, range, codes);
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

void to_ycbcr(const pixel_pairs& row, std::size_t pixels, const ycbcr_weights& weights, const code_range& luma,
              std::uint8_t* codes)
{
    HWY_DYNAMIC_DISPATCH(pairs_to_ycbcr_8)(row, pixels, weights, luma, codes);
}

void to_ycbcr(const pixel_pairs& row, std::size_t pixels, const ycbcr_weights& weights, const code_range& luma,
              std::uint16_t* codes)
{
    HWY_DYNAMIC_DISPATCH(pairs_to_ycbcr_16)(row, pixels, weights, luma, codes);
}

} // namespace ov1::media::ycbcr_kernel

#endif
