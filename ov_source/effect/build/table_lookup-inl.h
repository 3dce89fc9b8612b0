// The entries of a chunk looked up in another table. Included once for every instruction set.
// The results have the bits of lut_argb::lookup: positions are found for all entries of a chunk in vectors, then each
// entry is interpolated along red, green and blue in that order.
#if defined(OV1_EFFECT_TABLE_LOOKUP_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef OV1_EFFECT_TABLE_LOOKUP_INL_H
#undef OV1_EFFECT_TABLE_LOOKUP_INL_H
#else
#define OV1_EFFECT_TABLE_LOOKUP_INL_H
#endif

#include "effect/build/table_sum-inl.h"

#include <cstdint>

HWY_BEFORE_NAMESPACE();
namespace ov1::build_kernel
{
namespace HWY_NAMESPACE
{

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

HWY_INLINE void look_up(const lut_argb<edge>& table, const chunk& entries, chunk& composed)
{
    for (std::size_t i = 0; i < chunk_entries; ++i)
    {
        const argb_float colour = table.lookup({1.0f, entries.r[i], entries.g[i], entries.b[i]});
        composed.r[i] = colour.r;
        composed.g[i] = colour.g;
        composed.b[i] = colour.b;
    }
}

#else

/// grid_position_of for every entry and axis. Indices count entries of the other table.
struct alignas(64) positions
{
    chunk fraction;
    std::int32_t lower[chunk_entries];               ///< index of the lower corner
    std::int32_t step[channel_count][chunk_entries]; ///< from there to the upper one; 0 at the last grid point
};

/// Entries may hold any value: those outside 0..1 are limited here.
HWY_INLINE void find(const chunk& entries, positions& found)
{
    const floats d;
    const hn::RebindToSigned<floats> whole;
    const auto last = hn::Set(d, static_cast<float>(edge - 1));
    // From one grid point to the next along red, green and blue, in entries.
    constexpr std::int32_t steps[] = {edge * edge, edge, 1};
    each_vector(
        [&](std::size_t i) HWY_ATTR
        {
            auto lower = hn::Zero(whole);
            for (std::size_t c = 0; c < channel_count; ++c)
            {
                // grid_position_at: scale, limit, truncate. A NaN fails the comparison and gives 0.
                const auto scaled = hn::Mul(hn::Load(d, entries.channel(c) + i), last);
                const auto x = hn::Min(hn::IfThenElseZero(hn::Gt(scaled, hn::Zero(d)), scaled), last);
                const auto point = hn::Trunc(x);
                const auto step = hn::Set(whole, steps[c]);
                hn::Store(hn::Sub(x, point), d, found.fraction.channel(c) + i);
                lower = hn::Add(lower, hn::Mul(hn::ConvertTo(whole, point), step));
                // At the last grid point the upper corner is the lower one, and the fraction is 0.
                const auto before_end = hn::RebindMask(whole, hn::Lt(point, last));
                hn::Store(hn::IfThenElseZero(before_end, step), whole, found.step[c] + i);
            }
            hn::Store(lower, whole, found.lower + i);
        });
}

/// lut_argb::lookup, one entry at a time in four lanes: the corners of different entries have nothing in common.
HWY_INLINE void look_up(const lut_argb<edge>& table, const chunk& entries, chunk& composed)
{
    positions at;
    find(entries, at);
    const hn::CappedTag<float, 4> colour;
    alignas(64) float colours[4 * chunk_entries];
    const float* corners = &table.get_entries().data()->a;
    for (std::size_t i = 0; i < chunk_entries; ++i)
    {
        // Entries to floats: four per entry.
        const float* lower = corners + 4 * at.lower[i];
        const std::ptrdiff_t up_r = 4 * at.step[0][i], up_g = 4 * at.step[1][i], up_b = 4 * at.step[2][i];
        const auto red = hn::Set(colour, at.fraction.r[i]), green = hn::Set(colour, at.fraction.g[i]);
        const auto between = [&](auto from, auto to, auto fraction) HWY_ATTR
        { return hn::Add(from, hn::Mul(hn::Sub(to, from), fraction)); };
        const auto along_red = [&](const float* corner) HWY_ATTR
        { return between(hn::LoadU(colour, corner), hn::LoadU(colour, corner + up_r), red); };
        const auto c0 = between(along_red(lower), along_red(lower + up_g), green);
        const auto c1 = between(along_red(lower + up_b), along_red(lower + up_g + up_b), green);
        hn::Store(between(c0, c1, hn::Set(colour, at.fraction.b[i])), colour, colours + 4 * i);
    }
    split_channels(colours, composed);
}

#endif

/// lut_utils::apply: the entries are followed by the table, or move towards that by the amount.
HWY_INLINE void follow(const table_share& share, chunk& entries)
{
    chunk composed;
    look_up(*share.table, entries, composed);
    // A case of its own, because from + (to - from) is not always to.
    if (share.amount == 1.0f)
        entries = composed;
    else
        mix(entries, composed, [&](std::size_t) HWY_ATTR { return hn::Set(floats(), share.amount); });
}

} // namespace HWY_NAMESPACE
} // namespace ov1::build_kernel
HWY_AFTER_NAMESPACE();

#endif
