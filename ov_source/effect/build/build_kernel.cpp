// Compiled once for every instruction set: foreach_target.h includes this file again for each.
#include "effect/build/build_kernel.h"

#include "platform/highway_targets.h" // before Highway

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "effect/build/build_kernel.cpp"
#include <hwy/foreach_target.h> // before highway.h, by its own rule

#include "effect/lut/integer_hsl.h"

#include <hwy/highway.h>

#include <cstdint>

// Every operation here is the one of the readable build, in its order and precision; what differs is that some of them
// take another road to the same value, and says so.

HWY_BEFORE_NAMESPACE();
namespace ov1
{
namespace HWY_NAMESPACE
{

namespace hn = hwy::HWY_NAMESPACE;

using floats = hn::ScalableTag<float>;
using doubles = hn::ScalableTag<double>;
using few_floats = hn::Rebind<float, doubles>; ///< as many as there are doubles
using float_vector = hn::Vec<floats>;
using double_vector = hn::Vec<doubles>;

constexpr std::size_t edge = lut_edge;
constexpr std::size_t entry_count = lut_argb<edge>::entry_count;
constexpr std::size_t chunk_entries = 128;

/// A channel each of so many neighbouring entries.
struct alignas(64) chunk
{
    float r[chunk_entries];
    float g[chunk_entries];
    float b[chunk_entries];

    float* channel(std::size_t i) { return i == 0 ? r : i == 1 ? g : b; }
    const float* channel(std::size_t i) const { return i == 0 ? r : i == 1 ? g : b; }
};

constexpr std::size_t channels = 3;

/// What stands at the grid points of a chunk before anything acts.
struct grid
{
    std::size_t first; ///< index of the first entry
    chunk units;       ///< 0..65535
    chunk sixteenths;  ///< 0..1, exact
    chunk identity;    ///< 0..1, as an identity table has it
};

template <class function>
HWY_INLINE void each_vector(const function& f)
{
    for (std::size_t i = 0; i < chunk_entries; i += hn::Lanes(floats()))
        f(i);
}

/// value < 0 ? 0 : value
template <class D>
HWY_INLINE hn::Vec<D> at_least_0(D d, hn::Vec<D> value)
{
    return hn::IfThenZeroElse(hn::Lt(value, hn::Zero(d)), value);
}

HWY_INLINE float_vector within_unit(float_vector value)
{
    const floats d;
    const auto positive = hn::IfThenElseZero(hn::Gt(value, hn::Zero(d)), value);
    return hn::Min(positive, hn::Set(d, 1.0f));
}

/// From 16-bit units to 0..1.
HWY_INLINE float_vector limited_units(float_vector value)
{
    const floats d;
    const auto unit = hn::Mul(at_least_0(d, value), hn::Set(d, unit_per_u16));
    return hn::IfThenElse(hn::Gt(value, hn::Set(d, u16_max)), hn::Set(d, 1.0f), unit);
}

/// n / divisor, rounded down, of whole numbers far below the float's precision: the half keeps clear of the next one.
template <class D>
HWY_INLINE hn::Vec<D> whole_quotient(D d, hn::Vec<D> n, double divisor)
{
    using T = hn::TFromD<D>;
    const auto middle = hn::Add(n, hn::Set(d, static_cast<T>(0.5)));
    return hn::Trunc(hn::Mul(middle, hn::Set(d, static_cast<T>(1.0 / divisor))));
}

HWY_INLINE void place(grid& at)
{
    const floats d;
    each_vector(
        [&](std::size_t i) HWY_ATTR
        {
            const auto index = hn::Iota(d, static_cast<float>(at.first + i));
            const auto r = whole_quotient(d, index, edge * edge);
            const auto rest = hn::Sub(index, hn::Mul(r, hn::Set(d, static_cast<float>(edge * edge))));
            const auto g = whole_quotient(d, rest, edge);
            const auto b = hn::Sub(rest, hn::Mul(g, hn::Set(d, static_cast<float>(edge))));
            const float_vector point[] = {r, g, b};
            for (std::size_t c = 0; c < channels; ++c)
            {
                // Both steps have so few bits that products and sums of them are exact.
                const auto units = hn::Mul(point[c], hn::Set(d, u16_max / (edge - 1)));
                hn::Store(units, d, at.units.channel(c) + i);
                hn::Store(hn::Mul(point[c], hn::Set(d, 1.0f / (edge - 1))), d, at.sixteenths.channel(c) + i);
                hn::Store(limited_units(units), d, at.identity.channel(c) + i);
            }
        });
}

/// lut::update. The falloff is computed as its table was: a division in every lane is cheaper than reads one by one.
HWY_INLINE void bend(const std::vector<lut_point>& points, const grid& at, chunk& to)
{
    const floats d;
    each_vector(
        [&](std::size_t i) HWY_ATTR
        {
            const auto r = hn::Load(d, at.units.r + i), g = hn::Load(d, at.units.g + i),
                       b = hn::Load(d, at.units.b + i);
            auto to_r = r, to_g = g, to_b = b;
            for (const lut_point& point : points)
            {
                const auto x = hn::Sub(r, hn::Set(d, point.source.r));
                const auto y = hn::Sub(g, hn::Set(d, point.source.g));
                const auto z = hn::Sub(b, hn::Set(d, point.source.b));
                const auto squares = hn::Add(hn::Add(hn::Mul(x, x), hn::Mul(y, y)), hn::Mul(z, z));
                const auto near = hn::Min(hn::Sqrt(squares), hn::Set(d, point.radius));
                const auto step = hn::Trunc(hn::Mul(hn::Set(d, point.radius_scale), near));
                const auto share = hn::Div(hn::Min(step, hn::Set(d, u16_max)), hn::Set(d, u16_max));
                const auto weight = hn::Sub(hn::Set(d, 1.0f), share);
                to_r = hn::Add(to_r, hn::Mul(hn::Set(d, point.target.r - point.source.r), weight));
                to_g = hn::Add(to_g, hn::Mul(hn::Set(d, point.target.g - point.source.g), weight));
                to_b = hn::Add(to_b, hn::Mul(hn::Set(d, point.target.b - point.source.b), weight));
            }
            hn::Store(limited_units(to_r), d, to.r + i);
            hn::Store(limited_units(to_g), d, to.g + i);
            hn::Store(limited_units(to_b), d, to.b + i);
        });
}

HWY_INLINE void load(const lut_argb<edge>& table, std::size_t first, chunk& to)
{
    const floats d;
    const argb_float* entries = table.get_entries().data() + first;
    each_vector(
        [&](std::size_t i) HWY_ATTR
        {
            float_vector a, r, g, b;
            hn::LoadInterleaved4(d, &entries[i].a, a, r, g, b);
            hn::Store(r, d, to.r + i);
            hn::Store(g, d, to.g + i);
            hn::Store(b, d, to.b + i);
        });
}

/// lut_utils::add
HWY_INLINE void add(chunk& to, const chunk& from, const grid& at, float amount, bool limit)
{
    const floats d;
    for (std::size_t c = 0; c < channels; ++c)
        each_vector(
            [&](std::size_t i) HWY_ATTR
            {
                const auto change =
                    hn::Sub(hn::Load(d, from.channel(c) + i), hn::Load(d, at.sixteenths.channel(c) + i));
                const auto sum = hn::Add(hn::Load(d, to.channel(c) + i), hn::Mul(change, hn::Set(d, amount)));
                hn::Store(limit ? within_unit(sum) : sum, d, to.channel(c) + i);
            });
}

HWY_INLINE void add_tables(chunk& to, const std::vector<table_share>& shares, const grid& at, bool limit)
{
    chunk from;
    for (const table_share& share : shares)
    {
        load(*share.table, at.first, from);
        add(to, from, at, share.amount, limit);
    }
}

/// to moves towards the other by weight(i), a vector.
template <class function>
HWY_INLINE void mix(chunk& to, const chunk& towards, const function& weight)
{
    const floats d;
    for (std::size_t c = 0; c < channels; ++c)
        each_vector(
            [&](std::size_t i) HWY_ATTR
            {
                const auto from = hn::Load(d, to.channel(c) + i);
                const auto change = hn::Sub(hn::Load(d, towards.channel(c) + i), from);
                hn::Store(hn::Add(from, hn::Mul(change, weight(i))), d, to.channel(c) + i);
            });
}

HWY_INLINE double_vector limited_milli(double_vector value)
{
    const doubles d;
    const auto positive = hn::IfThenElseZero(hn::Gt(value, hn::Zero(d)), value);
    return hn::Trunc(hn::Min(positive, hn::Set(d, 100'000.0)));
}

struct rgb_vectors
{
    double_vector r, g, b;
};

/// The parts of a colour, in doubles; r, g and b in 0..255.
struct hexcone
{
    double_vector hue_milli; ///< whole
    double_vector chroma;
    double_vector sum; ///< of the largest and the smallest channel
};

/// hexcone_hue and what goes with it.
HWY_INLINE hexcone hexcone_of(const rgb_vectors& c)
{
    const doubles d;
    const auto max = hn::Max(hn::Max(c.r, c.g), c.b);
    const auto min = hn::Min(hn::Min(c.r, c.g), c.b);
    const auto chroma = hn::Sub(max, min);
    const auto red = hn::Eq(max, c.r), green = hn::Eq(max, c.g);
    const auto difference =
        hn::IfThenElse(red, hn::Sub(c.g, c.b), hn::IfThenElse(green, hn::Sub(c.b, c.r), hn::Sub(c.r, c.g)));
    const auto sector =
        hn::IfThenElse(red, hn::Zero(d), hn::IfThenElse(green, hn::Set(d, 120'000.0), hn::Set(d, 240'000.0)));
    const auto full = hn::Set(d, 360'000.0);
    auto hue = hn::Add(hn::Div(hn::Mul(difference, hn::Set(d, 60'000.0)), chroma), sector);
    hue = hn::IfThenElse(hn::Lt(hue, hn::Zero(d)), hn::Add(hue, full), hue);
    hue = hn::IfThenElse(hn::Lt(hue, full), hue, hn::Sub(hue, full));
    const auto is_colour = hn::Gt(chroma, hn::Zero(d)); // a grey's quotient is no number
    return {hn::Trunc(hn::IfThenElseZero(is_colour, hue)), chroma, hn::Add(max, min)};
}

/// A channel of rgb_of. Around its own hue a channel is high for a sector either way and falls to low over the next:
/// rise is the distance from the far end of that, in thousandths of a degree.
HWY_INLINE double_vector channel_of(double_vector rise, double_vector low, double_vector range)
{
    const doubles d;
    constexpr double sector = 60'000.0;
    const auto share = hn::Min(at_least_0(d, rise), hn::Set(d, sector));
    const auto scaled = hn::Add(hn::Mul(low, hn::Set(d, sector)), hn::Mul(range, share)); // whole and below 2^53
    const auto milli = whole_quotient(d, scaled, sector);
    // channel_of_milli with its divisions in one factor: the same float for each of the 100,001 values there are.
    constexpr double code_per_milli = 256'000.0 / 100'000.0 / 1000.0 / 255.0;
    return hn::Min(hn::Mul(milli, hn::Set(d, code_per_milli)), hn::Set(d, 1.0));
}

/// rgb_of: hue in 0..359,999, chroma and lightness in 0..100,000, all whole.
HWY_INLINE rgb_vectors rgb_vectors_of(double_vector hue, double_vector chroma, double_vector lightness)
{
    const doubles d;
    const auto half = hn::Set(d, 0.5);
    const auto off_middle = hn::Abs(hn::Sub(lightness, hn::Set(d, 50'000.0)));
    const auto allowed = hn::Sub(hn::Set(d, 100'000.0), hn::Add(off_middle, off_middle));
    const auto half_range = hn::Trunc(hn::Mul(hn::Min(chroma, allowed), half));
    const auto low = hn::Sub(lightness, half_range);
    const auto range = hn::Add(half_range, half_range);

    const auto reach = hn::Set(d, 120'000.0);
    const auto from = [&](double centre) HWY_ATTR { return hn::Abs(hn::Sub(hue, hn::Set(d, centre))); };
    const auto from_cyan = hn::Sub(from(180'000.0), hn::Set(d, 60'000.0)); // red lies at both ends
    return {channel_of(from_cyan, low, range), channel_of(hn::Sub(reach, from(120'000.0)), low, range),
            channel_of(hn::Sub(reach, from(240'000.0)), low, range)};
}

/// Takes a chunk through the hexcone: change(i, parts, chroma, lightness) sets the two in thousandths, unlimited.
template <class function>
HWY_INLINE void through_hexcone(chunk& to, const function& change)
{
    const doubles d;
    const few_floats f;
    for (std::size_t i = 0; i < chunk_entries; i += hn::Lanes(d))
    {
        const auto u8 = [&](const float* channel) HWY_ATTR
        { return hn::Mul(hn::PromoteTo(d, hn::LoadU(f, channel + i)), hn::Set(d, 255.0)); };
        const hexcone parts = hexcone_of({u8(to.r), u8(to.g), u8(to.b)});
        double_vector chroma, lightness;
        change(i, parts, chroma, lightness);
        const rgb_vectors rgb = rgb_vectors_of(parts.hue_milli, limited_milli(chroma), limited_milli(lightness));
        hn::StoreU(hn::DemoteTo(f, rgb.r), f, to.r + i);
        hn::StoreU(hn::DemoteTo(f, rgb.g), f, to.g + i);
        hn::StoreU(hn::DemoteTo(f, rgb.b), f, to.b + i);
    }
}

HWY_INLINE void change_chroma_and_luminance(double chroma_percent, double luminance_percent, chunk& to)
{
    const doubles d;
    through_hexcone(to,
                    [&](std::size_t, const hexcone& parts, double_vector& chroma, double_vector& lightness) HWY_ATTR
                    {
                        const auto thousand = hn::Set(d, 1000.0);
                        const auto there = hn::Mul(parts.chroma, hn::Set(d, percent_per_u8));
                        const auto more = hn::Mul(hn::Set(d, chroma_percent / 100.0), there);
                        chroma = hn::Mul(hn::Add(there, more), thousand);
                        const auto mean = hn::Mul(parts.sum, hn::Set(d, half_sum_percent_per_u8));
                        lightness = hn::Mul(hn::Add(mean, hn::Set(d, luminance_percent)), thousand);
                    });
}

/// lut_utils::add_chroma with the complement of the mask, whose weights are given from the chunk's first entry on.
HWY_INLINE void add_chroma(int percent, const float* weights, chunk& to)
{
    const doubles d;
    const few_floats f;
    const auto one = hn::Set(d, 1.0);
    through_hexcone(to,
                    [&](std::size_t i, const hexcone& parts, double_vector& chroma, double_vector& lightness) HWY_ATTR
                    {
                        const auto weight = hn::PromoteTo(d, hn::Sub(hn::Set(f, 1.0f), hn::LoadU(f, weights + i)));
                        const auto there = hn::Mul(parts.chroma, hn::Set(d, percent_per_u8));
                        auto share = hn::Div(hn::Sub(there, one), hn::Set(d, 6.0));
                        share = hn::IfThenElse(hn::Gt(there, hn::Set(d, 7.0)), one, share);
                        share = hn::IfThenElseZero(hn::Gt(there, one), share);
                        const auto push = hn::Mul(hn::Mul(weight, hn::Set(d, static_cast<double>(percent))), share);
                        chroma = hn::Mul(at_least_0(d, hn::Add(there, push)), hn::Set(d, 1000.0));
                        const auto mean = hn::Mul(parts.sum, hn::Set(d, half_sum_percent_per_u8));
                        lightness = hn::Mul(mean, hn::Set(d, 1000.0));
                    });
}

/// lut_utils::modify_skin_tones
HWY_INLINE void push_skin(const skin_steps& skin, const grid& at, chunk& to)
{
    const floats d;
    const float* weights = skin.skin->weights.data() + at.first;
    if (skin.protect > 0.0)
    {
        alignas(64) float ways[chunk_entries];
        for (std::size_t i = 0; i < chunk_entries; ++i)
            ways[i] = static_cast<float>(weights[i] * skin.protect);
        mix(to, at.identity, [&](std::size_t i) HWY_ATTR { return hn::Load(d, ways + i); });
    }
    if (skin.chroma_percent != 0)
    {
        const float* beyond = skin.beyond_skin->weights.data() + at.first;
        chunk working = at.identity, still;
        add_chroma(skin.chroma_percent, beyond, working);
        load(*skin.still, at.first, still);
        add(working, still, at, -1.0f, false);
        add(to, working, at, 1.0f, true);
    }
    for (const table_share& share : skin.towards)
    {
        chunk working = at.identity, reference;
        load(*share.table, at.first, reference);
        mix(working, reference, [&](std::size_t i) HWY_ATTR { return hn::LoadU(d, weights + i); });
        add(to, working, at, share.amount, true);
    }
}

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

HWY_INLINE void look_up(const lut_argb<edge>& table, const chunk& from, chunk& to)
{
    for (std::size_t i = 0; i < chunk_entries; ++i)
    {
        const argb_float c = table.lookup({1.0f, from.r[i], from.g[i], from.b[i]});
        to.r[i] = c.r;
        to.g[i] = c.g;
        to.b[i] = c.b;
    }
}

#else

/// Where the entries of a chunk fall in a table, as grid_position_of has it for each axis.
struct alignas(64) positions
{
    chunk way;
    std::int32_t lower[chunk_entries];           ///< index of the lower corner
    std::int32_t upper[channels][chunk_entries]; ///< from there to the upper one: a step, or 0 at the end
};

HWY_INLINE void find(const chunk& from, positions& to)
{
    const floats d;
    const hn::RebindToSigned<floats> whole;
    const auto last = hn::Set(d, static_cast<float>(edge - 1));
    constexpr std::int32_t steps[] = {edge * edge, edge, 1};
    each_vector(
        [&](std::size_t i) HWY_ATTR
        {
            auto lower = hn::Zero(whole);
            for (std::size_t c = 0; c < channels; ++c)
            {
                const auto scaled = hn::Mul(hn::Load(d, from.channel(c) + i), last);
                const auto x = hn::Min(hn::IfThenElseZero(hn::Gt(scaled, hn::Zero(d)), scaled), last);
                const auto point = hn::Trunc(x);
                const auto step = hn::Set(whole, steps[c]);
                hn::Store(hn::Sub(x, point), d, to.way.channel(c) + i);
                lower = hn::Add(lower, hn::Mul(hn::ConvertTo(whole, point), step));
                const auto before_end = hn::RebindMask(whole, hn::Lt(point, last));
                hn::Store(hn::IfThenElseZero(before_end, step), whole, to.upper[c] + i);
            }
            hn::Store(lower, whole, to.lower + i);
        });
}

/// lut_argb::lookup
HWY_INLINE void look_up(const lut_argb<edge>& table, const chunk& from, chunk& to)
{
    positions at;
    find(from, at);
    const floats d;
    const hn::CappedTag<float, 4> colour;
    alignas(64) float colours[4 * chunk_entries];
    const float* entries = &table.get_entries().data()->a;
    for (std::size_t i = 0; i < chunk_entries; ++i)
    {
        const float* lower = entries + 4 * at.lower[i];
        const std::ptrdiff_t up_r = 4 * at.upper[0][i], up_g = 4 * at.upper[1][i], up_b = 4 * at.upper[2][i];
        const auto way_r = hn::Set(colour, at.way.r[i]), way_g = hn::Set(colour, at.way.g[i]);
        const auto between = [&](auto begin, auto end, auto way) HWY_ATTR
        { return hn::Add(begin, hn::Mul(hn::Sub(end, begin), way)); };
        const auto along_red = [&](const float* corner) HWY_ATTR
        { return between(hn::LoadU(colour, corner), hn::LoadU(colour, corner + up_r), way_r); };
        const auto c0 = between(along_red(lower), along_red(lower + up_g), way_g);
        const auto c1 = between(along_red(lower + up_b), along_red(lower + up_g + up_b), way_g);
        hn::Store(between(c0, c1, hn::Set(colour, at.way.b[i])), colour, colours + 4 * i);
    }
    each_vector(
        [&](std::size_t i) HWY_ATTR
        {
            float_vector a, r, g, b;
            hn::LoadInterleaved4(d, colours + 4 * i, a, r, g, b);
            hn::Store(r, d, to.r + i);
            hn::Store(g, d, to.g + i);
            hn::Store(b, d, to.b + i);
        });
}

#endif

/// lut_utils::apply
HWY_INLINE void follow(const table_share& share, chunk& to)
{
    chunk composed;
    look_up(*share.table, to, composed);
    if (share.amount == 1.0f)
        to = composed;
    else
        mix(to, composed, [&](std::size_t) HWY_ATTR { return hn::Set(floats(), share.amount); });
}

/// Entries are independent of each other, so that a chunk goes through all steps while it is in the first cache.
HWY_INLINE void build_chunk(const build_plan& plan, const skin_steps& skin, std::size_t first, argb_float* entries)
{
    grid at;
    at.first = first;
    place(at);
    chunk to;
    bend(plan.wheels, at, to);
    chunk looks = at.identity;
    add_tables(looks, plan.sky_and_greenery, at, false);
    add(to, looks, at, 1.0f, true);
    push_skin(skin, at, to);
    change_chroma_and_luminance(plan.chroma_percent, plan.luminance_percent, to);
    for (const table_share& share : plan.saturation)
        follow(share, to);
    add_tables(to, plan.film_contrast, at, true);

    const floats d;
    each_vector(
        [&](std::size_t i) HWY_ATTR
        {
            hn::StoreInterleaved4(hn::Set(d, 1.0f), hn::Load(d, to.r + i), hn::Load(d, to.g + i), hn::Load(d, to.b + i),
                                  d, &entries[first + i].a);
        });
}

void run_build_here(const build_plan& plan, const skin_steps& skin, argb_float* entries)
{
    for (std::size_t first = 0; first + chunk_entries < entry_count; first += chunk_entries)
        build_chunk(plan, skin, first, entries);
    build_chunk(plan, skin, entry_count - chunk_entries, entries); // the last one overlaps the one before
}

} // namespace HWY_NAMESPACE
} // namespace ov1
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace ov1
{

HWY_EXPORT(run_build_here);

void run_build(const build_plan& plan, const skin_steps& skin, argb_float* entries)
{
    HWY_DYNAMIC_DISPATCH(run_build_here)(plan, skin, entries);
}

} // namespace ov1

#endif
