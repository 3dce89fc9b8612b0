// The skin controls on a chunk: lut_utils::modify_skin_tones. Included once for every instruction set.
// The masks select skin by grid point, not by the present colour of an entry: wheels and looks that act before do not
// change which entries count as skin.
#if defined(OV1_EFFECT_SKIN_PUSH_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef OV1_EFFECT_SKIN_PUSH_INL_H
#undef OV1_EFFECT_SKIN_PUSH_INL_H
#else
#define OV1_EFFECT_SKIN_PUSH_INL_H
#endif

#include "effect/build/hexcone-inl.h"
#include "effect/build/table_sum-inl.h"

HWY_BEFORE_NAMESPACE();
namespace ov1::build_kernel
{
namespace HWY_NAMESPACE
{

/// The share of a chroma push that entries take: none up to 1 percent of chroma, all from 7 percent on.
HWY_INLINE double_vector push_share(double_vector chroma_percent)
{
    const doubles d;
    const auto one = hn::Set(d, 1.0);
    const auto ramp = hn::Div(hn::Sub(chroma_percent, one), hn::Set(d, 6.0));
    const auto share = hn::IfThenElse(hn::Gt(chroma_percent, hn::Set(d, 7.0)), one, ramp);
    return hn::IfThenElseZero(hn::Gt(chroma_percent, one), share);
}

/// lut_utils::add_chroma with the complement of a mask. weights points at the weight of the chunk's first entry.
HWY_INLINE void add_chroma(int percent, const float* weights, chunk& entries)
{
    const doubles d;
    const few_floats f;
    through_hexcone(entries,
                    [&](std::size_t i, const hexcone_vectors& parts, double_vector& chroma_milli,
                        double_vector& lightness_milli) HWY_ATTR
                    {
                        // The complement is taken in floats, as lut_mask::weight does.
                        const auto weight = hn::PromoteTo(d, hn::Sub(hn::Set(f, 1.0f), hn::LoadU(f, weights + i)));
                        const auto chroma = hn::Mul(parts.chroma, hn::Set(d, percent_per_u8));
                        // Weight first, then the share: another order could give another last bit.
                        const auto push =
                            hn::Mul(hn::Mul(weight, hn::Set(d, static_cast<double>(percent))), push_share(chroma));
                        chroma_milli = hn::Mul(at_least_0(d, hn::Add(chroma, push)), hn::Set(d, 1000.0));
                        const auto lightness = hn::Mul(parts.sum, hn::Set(d, half_sum_percent_per_u8));
                        lightness_milli = hn::Mul(lightness, hn::Set(d, 1000.0));
                    });
}

/// The steps that the plan asks for, in the order of the plain code: protection, chroma, reference tables.
HWY_INLINE void push_skin(const skin_steps& skin, const grid& points, chunk& entries)
{
    const floats d;
    const float* weights = skin.skin->weights.data() + points.first;
    if (skin.protect > 0.0)
    {
        // In doubles and rounded once, as the plain code does it.
        alignas(64) float protecting[chunk_entries];
        for (std::size_t i = 0; i < chunk_entries; ++i)
            protecting[i] = static_cast<float>(weights[i] * skin.protect);
        mix(entries, points.identity, [&](std::size_t i) HWY_ATTR { return hn::Load(d, protecting + i); });
    }
    if (skin.chroma_percent != 0)
    {
        // Pushed identity minus unpushed one: the scale of the conversion cancels, and only the push is added.
        chunk change = points.identity, unpushed;
        add_chroma(skin.chroma_percent, skin.beyond_skin->weights.data() + points.first, change);
        load(*skin.no_push, points.first, unpushed);
        add(change, unpushed, points, -1.0f, false);
        add(entries, change, points, 1.0f, true);
    }
    for (const table_share& share : skin.towards)
    {
        // The identity moved towards the reference where there is skin, then added like a look.
        chunk change = points.identity, reference;
        load(*share.table, points.first, reference);
        mix(change, reference, [&](std::size_t i) HWY_ATTR { return hn::LoadU(d, weights + i); });
        add(entries, change, points, share.amount, true);
    }
}

} // namespace HWY_NAMESPACE
} // namespace ov1::build_kernel
HWY_AFTER_NAMESPACE();

#endif
