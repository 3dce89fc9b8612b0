// Chunks of table entries, and the arithmetic that the steps of the build share. Included once for every instruction
// set.
#if defined(OV1_EFFECT_ENTRY_CHUNK_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef OV1_EFFECT_ENTRY_CHUNK_INL_H
#undef OV1_EFFECT_ENTRY_CHUNK_INL_H
#else
#define OV1_EFFECT_ENTRY_CHUNK_INL_H
#endif

#include "effect/build/build_kernel.h"

#include "platform/highway_targets.h" // before Highway

#include <hwy/highway.h>

#include <cstddef>

HWY_BEFORE_NAMESPACE();
namespace ov1::build_kernel
{
namespace HWY_NAMESPACE
{

namespace hn = hwy::HWY_NAMESPACE;

/// Whole vectors of the instruction set. A chunk is a whole number of them.
using floats = hn::ScalableTag<float>;
using doubles = hn::ScalableTag<double>;
using few_floats = hn::Rebind<float, doubles>; ///< as many floats as a vector holds doubles
using float_vector = hn::Vec<floats>;
using double_vector = hn::Vec<doubles>;

constexpr std::size_t edge = lut_edge;
constexpr std::size_t entry_count = lut_argb<edge>::entry_count;
/// A chunk is 1.5 KB, so those of a whole build fit the first-level cache.
constexpr std::size_t chunk_entries = 128;
/// Red, green and blue, in this order wherever channels are numbered.
constexpr std::size_t channel_count = 3;

/// chunk_entries consecutive entries, one array per channel. Alpha is 1 in all of them and not kept.
struct alignas(64) chunk
{
    float r[chunk_entries];
    float g[chunk_entries];
    float b[chunk_entries];

    float* channel(std::size_t i) { return i == 0 ? r : i == 1 ? g : b; }
    const float* channel(std::size_t i) const { return i == 0 ? r : i == 1 ? g : b; }
};

/// Calls step(i) for the first entry of each vector of floats.
template <class function>
HWY_INLINE void each_vector(const function& step)
{
    for (std::size_t i = 0; i < chunk_entries; i += hn::Lanes(floats()))
        step(i);
}

/// Separates the channels of chunk_entries colours a, r, g, b; alpha is dropped. Any alignment.
HWY_INLINE void split_channels(const float* argb, chunk& entries)
{
    const floats d;
    each_vector(
        [&](std::size_t i) HWY_ATTR
        {
            float_vector a, r, g, b;
            // Interleaved in tables, planar in chunks, where every lane does the same work.
            hn::LoadInterleaved4(d, argb + 4 * i, a, r, g, b);
            hn::Store(r, d, entries.r + i);
            hn::Store(g, d, entries.g + i);
            hn::Store(b, d, entries.b + i);
        });
}

/// The entries of a table from index `first` on. The table must have chunk_entries from there.
HWY_INLINE void load(const lut_argb<edge>& table, std::size_t first, chunk& entries)
{
    split_channels(&table.get_entries()[first].a, entries);
}

/// value < 0 ? 0 : value
template <class D>
HWY_INLINE hn::Vec<D> at_least_0(D d, hn::Vec<D> value)
{
    return hn::IfThenZeroElse(hn::Lt(value, hn::Zero(d)), value);
}

/// Limited to 0..1; a NaN becomes 0, because it is not greater than 0.
HWY_INLINE float_vector within_unit(float_vector value)
{
    const floats d;
    const auto positive = hn::IfThenElseZero(hn::Gt(value, hn::Zero(d)), value);
    return hn::Min(positive, hn::Set(d, 1.0f));
}

/// From 16-bit units to 0..1, limited.
HWY_INLINE float_vector limited_units(float_vector value)
{
    const floats d;
    const auto unit = hn::Mul(at_least_0(d, value), hn::Set(d, unit_per_u16));
    return hn::IfThenElse(hn::Gt(value, hn::Set(d, u16_max)), hn::Set(d, 1.0f), unit);
}

/// floor(n / divisor) by a multiplication, which costs less than a division. n is whole and far below the type's
/// precision: n + 1/2 is at least half a step away from the next quotient, more than the product can be wrong by.
template <class D>
HWY_INLINE hn::Vec<D> whole_quotient(D d, hn::Vec<D> n, double divisor)
{
    using T = hn::TFromD<D>;
    const auto middle = hn::Add(n, hn::Set(d, static_cast<T>(0.5)));
    return hn::Trunc(hn::Mul(middle, hn::Set(d, static_cast<T>(1.0 / divisor))));
}

} // namespace HWY_NAMESPACE
} // namespace ov1::build_kernel
HWY_AFTER_NAMESPACE();

#endif
