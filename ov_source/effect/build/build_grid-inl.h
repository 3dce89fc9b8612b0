// The grid points of a chunk, and the wheels' points that bend them. Included once for every instruction set.
#if defined(OV1_EFFECT_BUILD_GRID_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef OV1_EFFECT_BUILD_GRID_INL_H
#undef OV1_EFFECT_BUILD_GRID_INL_H
#else
#define OV1_EFFECT_BUILD_GRID_INL_H
#endif

#include "effect/build/entry_chunk-inl.h"

#include <vector>

HWY_BEFORE_NAMESPACE();
namespace ov1::build_kernel
{
namespace HWY_NAMESPACE
{

/// What the grid points of a chunk stand for before any step acts.
struct grid
{
    std::size_t first; ///< table index of the chunk's first entry
    chunk units;       ///< 0..65535, the unit of the wheels' points
    chunk sixteenths;  ///< 0..1, exact: what a look table is compared with
    chunk identity;    ///< 0..1, with the rounding of an identity table
};

/// Computes the rest of a grid from its `first`.
HWY_INLINE void fill(grid& points)
{
    const floats d;
    each_vector(
        [&](std::size_t i) HWY_ATTR
        {
            // Table indices are below 2^13, so floats hold them exactly.
            const auto index = hn::Iota(d, static_cast<float>(points.first + i));
            // The index of an entry is (r * 17 + g) * 17 + b: undone by two divisions.
            const auto r = whole_quotient(d, index, edge * edge);
            const auto rest = hn::Sub(index, hn::Mul(r, hn::Set(d, static_cast<float>(edge * edge))));
            const auto g = whole_quotient(d, rest, edge);
            const auto b = hn::Sub(rest, hn::Mul(g, hn::Set(d, static_cast<float>(edge))));
            const float_vector point[] = {r, g, b};
            for (std::size_t c = 0; c < channel_count; ++c)
            {
                // Both steps have so few bits that the products are exact: they equal the sums of the plain code.
                const auto units = hn::Mul(point[c], hn::Set(d, u16_max / (edge - 1)));
                hn::Store(units, d, points.units.channel(c) + i);
                hn::Store(hn::Mul(point[c], hn::Set(d, 1.0f / (edge - 1))), d, points.sixteenths.channel(c) + i);
                hn::Store(limited_units(units), d, points.identity.channel(c) + i);
            }
        });
}

/// lut::update. The plain code reads the falloff from a table of 65,536 values; here the same value is computed,
/// because a division in all lanes costs less than a read for each.
HWY_INLINE void bend(const std::vector<lut_point>& wheels, const grid& points, chunk& entries)
{
    const floats d;
    each_vector(
        [&](std::size_t i) HWY_ATTR
        {
            const auto r = hn::Load(d, points.units.r + i), g = hn::Load(d, points.units.g + i),
                       b = hn::Load(d, points.units.b + i);
            // Every wheel measures its distance from the grid point, not from where the other wheels moved it: the
            // order of the wheels matters only for rounding.
            auto bent_r = r, bent_g = g, bent_b = b;
            for (const lut_point& wheel : wheels)
            {
                const auto x = hn::Sub(r, hn::Set(d, wheel.source.r));
                const auto y = hn::Sub(g, hn::Set(d, wheel.source.g));
                const auto z = hn::Sub(b, hn::Set(d, wheel.source.b));
                // Summed in the order red, green, blue, as the plain code does.
                const auto squares = hn::Add(hn::Add(hn::Mul(x, x), hn::Mul(y, y)), hn::Mul(z, z));
                const auto distance = hn::Min(hn::Sqrt(squares), hn::Set(d, wheel.radius));
                // Truncated to a whole step: the plain code takes it as an index.
                const auto step = hn::Trunc(hn::Mul(hn::Set(d, wheel.radius_scale), distance));
                // The effect falls linearly from 1 at the source to 0 at the reach, in 65,535 steps.
                const auto lost = hn::Div(hn::Min(step, hn::Set(d, u16_max)), hn::Set(d, u16_max));
                const auto weight = hn::Sub(hn::Set(d, 1.0f), lost);
                bent_r = hn::Add(bent_r, hn::Mul(hn::Set(d, wheel.target.r - wheel.source.r), weight));
                bent_g = hn::Add(bent_g, hn::Mul(hn::Set(d, wheel.target.g - wheel.source.g), weight));
                bent_b = hn::Add(bent_b, hn::Mul(hn::Set(d, wheel.target.b - wheel.source.b), weight));
            }
            hn::Store(limited_units(bent_r), d, entries.r + i);
            hn::Store(limited_units(bent_g), d, entries.g + i);
            hn::Store(limited_units(bent_b), d, entries.b + i);
        });
}

} // namespace HWY_NAMESPACE
} // namespace ov1::build_kernel
HWY_AFTER_NAMESPACE();

#endif
