// Look tables added to a chunk, and chunks mixed by weights. Included once for every instruction set.
// Shares can be negative. All sums are single-precision, in the order of the plain code (lut_utils).
#if defined(OV1_EFFECT_TABLE_SUM_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef OV1_EFFECT_TABLE_SUM_INL_H
#undef OV1_EFFECT_TABLE_SUM_INL_H
#else
#define OV1_EFFECT_TABLE_SUM_INL_H
#endif

#include "effect/build/build_grid-inl.h"

#include <vector>

HWY_BEFORE_NAMESPACE();
namespace ov1::build_kernel
{
namespace HWY_NAMESPACE
{

/// lut_utils::add: entries += (look - identity) x amount.
HWY_INLINE void add(chunk& entries, const chunk& look, const grid& points, float amount, bool limit)
{
    const floats d;
    for (std::size_t c = 0; c < channel_count; ++c)
        each_vector(
            [&](std::size_t i) HWY_ATTR
            {
                const auto change =
                    hn::Sub(hn::Load(d, look.channel(c) + i), hn::Load(d, points.sixteenths.channel(c) + i));
                const auto sum = hn::Add(hn::Load(d, entries.channel(c) + i), hn::Mul(change, hn::Set(d, amount)));
                hn::Store(limit ? within_unit(sum) : sum, d, entries.channel(c) + i);
            });
}

/// Adds the tables one after the other. With limit, the entries are limited to 0..1 after each.
HWY_INLINE void add_tables(chunk& entries, const std::vector<table_share>& shares, const grid& points, bool limit)
{
    chunk look;
    for (const table_share& share : shares)
    {
        load(*share.table, points.first, look);
        add(entries, look, points, share.amount, limit);
    }
}

/// Moves the entries towards others. weight(i) gives the weights of the vector that begins at entry i.
template <class function>
HWY_INLINE void mix(chunk& entries, const chunk& others, const function& weight)
{
    const floats d;
    for (std::size_t c = 0; c < channel_count; ++c)
        each_vector(
            [&](std::size_t i) HWY_ATTR
            {
                const auto from = hn::Load(d, entries.channel(c) + i);
                // The operations of lerp, in its order.
                const auto change = hn::Sub(hn::Load(d, others.channel(c) + i), from);
                hn::Store(hn::Add(from, hn::Mul(change, weight(i))), d, entries.channel(c) + i);
            });
}

} // namespace HWY_NAMESPACE
} // namespace ov1::build_kernel
HWY_AFTER_NAMESPACE();

#endif
