// Compiled once for every instruction set: foreach_target.h includes this file again for each.
#include "effect/row_kernel.h"

#include "platform/highway_targets.h" // before Highway

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "effect/row_kernel.cpp"
#include <hwy/foreach_target.h> // before highway.h, by its own rule

#include <hwy/cache_control.h>
#include <hwy/highway.h>

#include <algorithm>
#include <cstdint>

HWY_BEFORE_NAMESPACE();
namespace ov1::row_kernel
{
namespace HWY_NAMESPACE
{

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

// No vectors to speak of: the lookup itself, which compilers turn into four lanes where there are four.

void argb_here(const render_lines& table, const argb_float* in, argb_float* out, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        out[i] = table.table->lookup(in[i]);
}

void half_here(const render_lines& table, const half_bits* in, half_bits* out, std::size_t count)
{
    for (; count > 0; --count, in += 4, out += 4)
    {
        const argb_float to =
            table.table->lookup({1.0f, half_to_float(in[0]), half_to_float(in[1]), half_to_float(in[2])});
        out[0] = float_to_half(to.r);
        out[1] = float_to_half(to.g);
        out[2] = float_to_half(to.b);
        out[3] = float_to_half(to.a);
    }
}

void planes_here(const render_lines& table, const rgb_planes<const float>& in, const rgb_planes<float>& out,
                 std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
    {
        const argb_float to = table.table->lookup({1.0f, in.r[i], in.g[i], in.b[i]});
        out.r[i] = to.r;
        out.g[i] = to.g;
        out.b[i] = to.b;
    }
}

#else

namespace hn = hwy::HWY_NAMESPACE;

using wide = hn::CappedTag<float, 8>; ///< a group of pixels
using colour = hn::CappedTag<float, 4>;
using wide_vector = hn::Vec<wide>;

constexpr std::size_t chunk_pixels = 128;
constexpr std::size_t group_pixels = hn::MaxLanes(wide()); ///< 8, or 4 where vectors are short
constexpr std::size_t group_blocks = group_pixels / 4;     ///< blocks of four lanes in a vector

/// In vectors and places the pixels of a group stand in this order: 0 2 4 6 in the first block of four lanes, 1 3 5 7
/// in the second, which costs the fewest moves in and puts neighbours at the same lane of both. Groups of 4 are in
/// order.
constexpr std::size_t lane_of(std::size_t pixel) { return pixel % group_blocks * 4 + pixel / group_blocks; }

struct alignas(64) chunk_places
{
    float red[chunk_pixels]; ///< the way to go to the upper grid point, 0 <= way < 1
    float green[chunk_pixels];
    float blue[chunk_pixels];
    std::int32_t line[chunk_pixels]; ///< in floats from the first line
};

struct alignas(64) chunk_colours
{
    float values[4 * chunk_pixels];
};

/// grid_position_of in vectors: the same clamps.
HWY_INLINE wide_vector on_axis(wide_vector channel)
{
    const wide d;
    const auto last = hn::Set(d, static_cast<float>(lut_edge - 1));
    const auto x = hn::Mul(channel, last);
#if HWY_ARCH_X86
    const auto positive = hn::Max(x, hn::Zero(d)); // x > 0 ? x : 0, NaN included: what the instruction is defined as
#else
    const auto positive = hn::IfThenElseZero(hn::Gt(x, hn::Zero(d)), x);
#endif
    return hn::Min(positive, last);
}

template <bool with_deltas>
HWY_INLINE void place(wide_vector r, wide_vector g, wide_vector b, std::size_t i, chunk_places& places)
{
    const wide d;
    const hn::RebindToSigned<wide> whole;
    const auto x = on_axis(r), y = on_axis(g), z = on_axis(b);
    const auto lower_r = hn::Trunc(x), lower_g = hn::Trunc(y), lower_b = hn::Trunc(z);
    hn::Store(hn::Sub(x, lower_r), d, places.red + i);
    hn::Store(hn::Sub(y, lower_g), d, places.green + i);
    hn::Store(hn::Sub(z, lower_b), d, places.blue + i);

    // Whole numbers below 2^23 are exact in floats, and 2^23 more leaves them in the low bits.
    constexpr float point = render_lines{with_deltas, nullptr, nullptr}.floats_per_point();
    constexpr float to_low_bits = 0x1p23f;
    constexpr std::int32_t bits_of_2_23 = 0x4b000000;
    const auto along_red = hn::Mul(lower_r, hn::Set(d, point * lut_edge * lut_edge));
    const auto along_green = hn::Mul(lower_g, hn::Set(d, point * lut_edge));
    const auto along_blue = hn::Mul(lower_b, hn::Set(d, point));
    const auto line = hn::Add(hn::Add(along_red, along_green), along_blue);
    const auto bits = hn::BitCast(whole, hn::Add(line, hn::Set(d, to_low_bits)));
    hn::Store(hn::Sub(bits, hn::Set(whole, bits_of_2_23)), whole, places.line + i);
}

template <class V>
HWY_INLINE V between(V from, V to, V way)
{
    return hn::Add(from, hn::Mul(hn::Sub(to, from), way));
}

template <bool with_deltas, class D>
HWY_INLINE hn::Vec<D> along_red(D d, const float* line, hn::Vec<D> way)
{
    const auto from = hn::Load(d, line);
    if constexpr (with_deltas)
        return hn::Add(from, hn::Mul(hn::Load(d, line + render_lines::floats_per_line), way));
    else
        return between(from, hn::Load(d, line + render_lines::floats_per_line * lut_edge * lut_edge), way);
}

#if HWY_MAX_BYTES >= 32

/// Interpolated along red and green: lower blue in the lower half, upper blue in the upper.
template <bool with_deltas>
HWY_INLINE wide_vector along_red_and_green(const float* lines, const chunk_places& places, std::size_t i)
{
    const wide d;
    const float* line = lines + places.line[i];
#if HWY_MAX_BYTES >= 64
    const hn::CappedTag<float, 16> all;
    const auto corners = along_red<with_deltas>(all, line, hn::Set(all, places.red[i]));
    const auto lower = hn::LowerHalf(d, corners), upper = hn::UpperHalf(d, corners);
#else
    const auto way = hn::Set(d, places.red[i]);
    const auto lower = along_red<with_deltas>(d, line, way), upper = along_red<with_deltas>(d, line + 8, way);
#endif
    return between(lower, upper, hn::Set(d, places.green[i]));
}

/// Two neighbours on their way: interpolated along red and green.
struct pixel_pair
{
    wide_vector first;
    wide_vector second;
};

template <bool with_deltas>
HWY_INLINE pixel_pair begin_pair(const float* lines, const chunk_places& places, std::size_t group, std::size_t pair)
{
    return {along_red_and_green<with_deltas>(lines, places, group + lane_of(2 * pair)),
            along_red_and_green<with_deltas>(lines, places, group + lane_of(2 * pair + 1))};
}

template <std::size_t pair>
HWY_INLINE void end_pair(const pixel_pair& rows, wide_vector blue, float* out)
{
    const wide d;
    const auto lower = hn::ConcatLowerLower(d, rows.second, rows.first);
    const auto upper = hn::ConcatUpperUpper(d, rows.second, rows.first);
    hn::StoreU(between(lower, upper, hn::Broadcast<pair>(blue)), d, out + 8 * pair);
}

/// All pairs begin before the first one ends: loads are done with sooner, and more of them are on their way at a time.
template <bool with_deltas>
HWY_INLINE void interpolate_group(const float* lines, const chunk_places& places, std::size_t group, float* out)
{
    const auto blue = hn::Load(wide(), places.blue + group);
    const auto pair_0 = begin_pair<with_deltas>(lines, places, group, 0);
    const auto pair_1 = begin_pair<with_deltas>(lines, places, group, 1);
    const auto pair_2 = begin_pair<with_deltas>(lines, places, group, 2);
    const auto pair_3 = begin_pair<with_deltas>(lines, places, group, 3);
    end_pair<0>(pair_0, blue, out);
    end_pair<1>(pair_1, blue, out);
    end_pair<2>(pair_2, blue, out);
    end_pair<3>(pair_3, blue, out);
}

#else

template <bool with_deltas>
HWY_INLINE void interpolate_group(const float* lines, const chunk_places& places, std::size_t group, float* out)
{
    const colour d;
    for (std::size_t i = group; i < group + group_pixels; ++i, out += 4)
    {
        const float* line = lines + places.line[i];
        const auto red = hn::Set(d, places.red[i]), green = hn::Set(d, places.green[i]);
        const auto corner = [&](std::size_t k) HWY_ATTR { return along_red<with_deltas>(d, line + 4 * k, red); };
        const auto lower = between(corner(0), corner(2), green), upper = between(corner(1), corner(3), green);
        hn::StoreU(between(lower, upper, hn::Set(d, places.blue[i])), d, out);
    }
}

#endif

/// What to bring into the cache while a chunk is interpolated. Prefetching needs no valid address.
struct cache_plan
{
    const char* next_in;
    const char* next_out;
    std::size_t bytes_per_group;
};

/// Whole groups: up to group_pixels - 1 pixels are written after the n-th.
template <bool with_deltas>
HWY_INLINE void interpolate(const float* lines, const chunk_places& places, std::size_t n, float* out,
                            const cache_plan& plan)
{
    constexpr std::size_t cache_line = 64;
    std::size_t ahead = 0;
    for (std::size_t i = 0; i < n; i += group_pixels)
    {
        for (const std::size_t end = ahead + plan.bytes_per_group; ahead < end; ahead += cache_line)
        {
            hwy::Prefetch(plan.next_in + ahead);
            hwy::Prefetch(plan.next_out + ahead);
        }
        interpolate_group<with_deltas>(lines, places, i, out + 4 * i);
    }
}

/// Pixels of four floats; red is the one at first_colour.
template <std::size_t first_colour>
struct interleaved_source
{
    const float* in;

    /// The group that begins at pixel i.
    HWY_INLINE void load(std::size_t i, wide_vector& r, wide_vector& g, wide_vector& b) const
    {
        const wide d;
        const hn::Repartition<double, wide> two_floats;
        const auto from = [&](std::size_t k) HWY_ATTR { return hn::LoadU(d, in + 4 * i + k * group_pixels); };
        const auto v0 = from(0), v1 = from(1), v2 = from(2), v3 = from(3);
        const auto channels_01_lower = hn::BitCast(two_floats, hn::InterleaveLower(d, v0, v1));
        const auto channels_01_upper = hn::BitCast(two_floats, hn::InterleaveLower(d, v2, v3));
        const auto channels_23_lower = hn::BitCast(two_floats, hn::InterleaveUpper(d, v0, v1));
        const auto channels_23_upper = hn::BitCast(two_floats, hn::InterleaveUpper(d, v2, v3));
        const auto lower = [&](auto x, auto y) HWY_ATTR
        { return hn::BitCast(d, hn::InterleaveLower(two_floats, x, y)); };
        const auto upper = [&](auto x, auto y) HWY_ATTR
        { return hn::BitCast(d, hn::InterleaveUpper(two_floats, x, y)); };
        const auto channel_1 = upper(channels_01_lower, channels_01_upper);
        const auto channel_2 = lower(channels_23_lower, channels_23_upper);
        if constexpr (first_colour == 1)
        {
            r = channel_1;
            g = channel_2;
            b = upper(channels_23_lower, channels_23_upper);
        }
        else
        {
            r = lower(channels_01_lower, channels_01_upper);
            g = channel_1;
            b = channel_2;
        }
    }

    /// Fewer pixels than a group, from i to n; the others are zeros.
    HWY_INLINE void load_rest(std::size_t i, std::size_t n, wide_vector& r, wide_vector& g, wide_vector& b) const
    {
        HWY_ALIGN float rest[4 * group_pixels] = {};
        std::copy(in + 4 * i, in + 4 * n, rest);
        interleaved_source{rest}.load(0, r, g, b);
    }
};

struct planar_source
{
    rgb_planes<const float> in;

    static wide_vector in_order_of_lanes(const float* from)
    {
        const wide d;
        HWY_ALIGN std::int32_t pixels[group_pixels];
        for (std::size_t pixel = 0; pixel < group_pixels; ++pixel)
            pixels[lane_of(pixel)] = static_cast<std::int32_t>(pixel);
        return hn::TableLookupLanes(hn::LoadU(d, from), hn::SetTableIndices(d, pixels));
    }

    HWY_INLINE void load(std::size_t i, wide_vector& r, wide_vector& g, wide_vector& b) const
    {
        r = in_order_of_lanes(in.r + i);
        g = in_order_of_lanes(in.g + i);
        b = in_order_of_lanes(in.b + i);
    }

    HWY_INLINE void load_rest(std::size_t i, std::size_t n, wide_vector& r, wide_vector& g, wide_vector& b) const
    {
        float rest[3][group_pixels] = {};
        std::copy(in.r + i, in.r + n, rest[0]);
        std::copy(in.g + i, in.g + n, rest[1]);
        std::copy(in.b + i, in.b + n, rest[2]);
        planar_source{{rest[0], rest[1], rest[2]}}.load(0, r, g, b);
    }
};

/// The places of the first n pixels, in whole groups.
template <bool with_deltas, class source>
HWY_INLINE void place_all(const source& from, std::size_t n, chunk_places& places)
{
    wide_vector r, g, b;
    std::size_t i = 0;
    for (; i + group_pixels <= n; i += group_pixels)
    {
        from.load(i, r, g, b);
        place<with_deltas>(r, g, b, i, places);
    }
    if (i < n)
    {
        from.load_rest(i, n, r, g, b);
        place<with_deltas>(r, g, b, i, places);
    }
}

/// Calls chunk(first pixel, pixels) over the row.
template <class function>
HWY_INLINE void each_chunk(std::size_t count, const function& chunk)
{
    for (std::size_t first = 0; first < count; first += chunk_pixels)
        chunk(first, std::min(chunk_pixels, count - first));
}

/// So far ahead that memory answers in time; measured on frames that fit no cache. Lines that are only written have to
/// come from memory too.
constexpr std::size_t chunks_ahead_in = 3;
constexpr std::size_t chunks_ahead_out = 8;

template <class sample>
cache_plan plan_for(const sample* in, const sample* out, std::size_t samples_per_pixel)
{
    const std::size_t per_chunk = chunk_pixels * samples_per_pixel * sizeof(sample);
    return {reinterpret_cast<const char*>(in) + chunks_ahead_in * per_chunk,
            reinterpret_cast<const char*>(out) + chunks_ahead_out * per_chunk,
            group_pixels * samples_per_pixel * sizeof(sample)};
}

template <bool with_deltas>
void render_argb_rows(const float* lines, const float* in, float* out, std::size_t count)
{
    chunk_places places;
    each_chunk(count,
               [&](std::size_t first, std::size_t n) HWY_ATTR
               {
                   const float* from = in + 4 * first;
                   float* to = out + 4 * first;
                   place_all<with_deltas>(interleaved_source<1>{from}, n, places);
                   const std::size_t whole = n - n % group_pixels;
                   interpolate<with_deltas>(lines, places, whole, to, plan_for(from, to, 4));
                   if (whole == n)
                       return;
                   float rest[4 * group_pixels];
                   interpolate_group<with_deltas>(lines, places, whole, rest);
                   std::copy(rest, rest + 4 * (n - whole), to + 4 * whole);
               });
}

using half_vector_tag = hn::Rebind<hwy::float16_t, wide>;
using half_bits_tag = hn::Rebind<std::uint16_t, wide>;

/// Widened exactly, as half_to_float does it.
HWY_INLINE wide_vector widen(const half_bits* in)
{
#if HWY_TARGET == HWY_SSE4 || HWY_TARGET == HWY_SSSE3 // no instruction for it
    const wide d;
    const hn::RebindToUnsigned<wide> bits;
    const hn::RebindToSigned<wide> whole;
    const auto half = hn::PromoteTo(bits, hn::LoadU(half_bits_tag(), in));
    const auto size = hn::And(half, hn::Set(bits, 0x7fffu));
    const auto sign = hn::ShiftLeft<16>(hn::AndNot(hn::Set(bits, 0x7fffu), half));
    const auto subnormal = hn::Mul(hn::ConvertTo(d, hn::BitCast(whole, size)), hn::Set(d, 0x1p-24f));
    const auto mantissa = hn::ShiftLeft<13>(size);
    const auto normal = hn::Add(mantissa, hn::Set(bits, (127u - 15u) << 23));
    const auto infinite = hn::Or(mantissa, hn::Set(bits, 0x7f800000u));
    const auto is_normal = hn::Gt(hn::BitCast(whole, size), hn::Set(whole, 0x03ff));
    const auto is_infinite = hn::Gt(hn::BitCast(whole, size), hn::Set(whole, 0x7bff));
    auto value = hn::IfThenElse(hn::RebindMask(bits, is_normal), normal, hn::BitCast(bits, subnormal));
    value = hn::IfThenElse(hn::RebindMask(bits, is_infinite), infinite, value);
    return hn::BitCast(d, hn::Or(sign, value));
#else
    return hn::PromoteTo(wide(), hn::BitCast(half_vector_tag(), hn::LoadU(half_bits_tag(), in)));
#endif
}

/// Rounded as float_to_half does it; no NaN.
HWY_INLINE void narrow(wide_vector value, half_bits* out)
{
#if HWY_TARGET == HWY_SSE4 || HWY_TARGET == HWY_SSSE3
    const wide d;
    const hn::RebindToUnsigned<wide> bits;
    const hn::RebindToSigned<wide> whole;
    const auto all = hn::BitCast(bits, value);
    const auto size = hn::And(all, hn::Set(bits, 0x7fffffffu));
    const auto above = [&](std::int32_t least) HWY_ATTR
    { return hn::RebindMask(bits, hn::Gt(hn::BitCast(whole, size), hn::Set(whole, least - 1))); };
    const auto odd = hn::And(hn::ShiftRight<13>(size), hn::Set(bits, 1u));
    const auto rebased = hn::Add(size, hn::Set(bits, 0xfffu - ((127u - 15u) << 23)));
    const auto normal = hn::ShiftRight<13>(hn::Add(rebased, odd));
    const auto subnormal = hn::Sub(hn::BitCast(bits, hn::Add(hn::BitCast(d, size), hn::Set(d, 0.5f))),
                                   hn::BitCast(bits, hn::Set(d, 0.5f)));
    auto half = hn::IfThenElse(above(0x38800000), normal, subnormal);
    half = hn::IfThenElse(above(0x477ff000), hn::Set(bits, 0x7c00u), half);
    half = hn::Or(half, hn::And(hn::ShiftRight<16>(all), hn::Set(bits, 0x8000u)));
    // Signed saturation is the only narrowing there is: sign-extended first, the low 16 bits pass it.
    const auto extended = hn::ShiftRight<16>(hn::ShiftLeft<16>(hn::BitCast(whole, half)));
    const hn::Rebind<std::int16_t, wide> narrow_whole;
    hn::StoreU(hn::BitCast(half_bits_tag(), hn::DemoteTo(narrow_whole, extended)), half_bits_tag(), out);
#else
    const auto half = hn::DemoteTo(half_vector_tag(), value);
    hn::StoreU(hn::BitCast(half_bits_tag(), half), half_bits_tag(), out);
#endif
}

/// Widens whole vectors of samples; the last may be short.
HWY_INLINE void widen_all(const half_bits* in, std::size_t samples, float* out)
{
    const wide d;
    std::size_t i = 0;
    for (; i + hn::Lanes(d) <= samples; i += hn::Lanes(d))
        hn::Store(widen(in + i), d, out + i);
    if (i < samples)
    {
        half_bits rest[group_pixels] = {};
        std::copy(in + i, in + samples, rest);
        hn::Store(widen(rest), d, out + i);
    }
}

/// From a, r, g, b floats to R, G, B, A halfs.
HWY_INLINE void narrow_all(const float* in, std::size_t samples, half_bits* out)
{
    const wide d;
    const auto alpha_last = [&](std::size_t i) HWY_ATTR { return hn::Shuffle0321(hn::Load(d, in + i)); };
    std::size_t i = 0;
    for (; i + hn::Lanes(d) <= samples; i += hn::Lanes(d))
        narrow(alpha_last(i), out + i);
    if (i < samples)
    {
        half_bits rest[group_pixels];
        narrow(alpha_last(i), rest);
        std::copy(rest, rest + (samples - i), out + i);
    }
}

template <bool with_deltas>
void render_half_rows(const float* lines, const half_bits* in, half_bits* out, std::size_t count)
{
    chunk_places places;
    chunk_colours colours = {};
    each_chunk(count,
               [&](std::size_t first, std::size_t n) HWY_ATTR
               {
                   const half_bits* from = in + 4 * first;
                   half_bits* to = out + 4 * first;
                   widen_all(from, 4 * n, colours.values);
                   place_all<with_deltas>(interleaved_source<0>{colours.values}, n, places);
                   interpolate<with_deltas>(lines, places, n, colours.values, plan_for(from, to, 4));
                   narrow_all(colours.values, 4 * n, to);
               });
}

HWY_INLINE void split(const float* in, std::size_t n, const rgb_planes<float>& out)
{
    const wide d;
    wide_vector a, r, g, b;
    std::size_t i = 0;
    for (; i + hn::Lanes(d) <= n; i += hn::Lanes(d))
    {
        hn::LoadInterleaved4(d, in + 4 * i, a, r, g, b);
        hn::StoreU(r, d, out.r + i);
        hn::StoreU(g, d, out.g + i);
        hn::StoreU(b, d, out.b + i);
    }
    for (; i < n; ++i)
    {
        out.r[i] = in[4 * i + 1];
        out.g[i] = in[4 * i + 2];
        out.b[i] = in[4 * i + 3];
    }
}

template <bool with_deltas>
void render_plane_rows(const float* lines, const rgb_planes<const float>& in, const rgb_planes<float>& out,
                       std::size_t count)
{
    chunk_places places;
    chunk_colours colours;
    each_chunk(count,
               [&](std::size_t first, std::size_t n) HWY_ATTR
               {
                   const planar_source from{{in.r + first, in.g + first, in.b + first}};
                   place_all<with_deltas>(from, n, places);
                   // Planes come in pieces that are in the cache already: one of them is prefetched, for form's sake.
                   interpolate<with_deltas>(lines, places, n, colours.values, plan_for(in.r + first, out.r + first, 1));
                   split(colours.values, n, {out.r + first, out.g + first, out.b + first});
               });
}

void argb_here(const render_lines& table, const argb_float* in, argb_float* out, std::size_t count)
{
    const auto rows = table.with_deltas ? render_argb_rows<true> : render_argb_rows<false>;
    rows(table.lines, &in->a, &out->a, count);
}

void half_here(const render_lines& table, const half_bits* in, half_bits* out, std::size_t count)
{
    const auto rows = table.with_deltas ? render_half_rows<true> : render_half_rows<false>;
    rows(table.lines, in, out, count);
}

void planes_here(const render_lines& table, const rgb_planes<const float>& in, const rgb_planes<float>& out,
                 std::size_t count)
{
    const auto rows = table.with_deltas ? render_plane_rows<true> : render_plane_rows<false>;
    rows(table.lines, in, out, count);
}

#endif

} // namespace HWY_NAMESPACE
} // namespace ov1::row_kernel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace ov1::row_kernel
{

HWY_EXPORT(argb_here);
HWY_EXPORT(half_here);
HWY_EXPORT(planes_here);

void render_argb(const render_lines& table, const argb_float* in, argb_float* out, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(argb_here)(table, in, out, count);
}

void render_half(const render_lines& table, const half_bits* in, half_bits* out, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(half_here)(table, in, out, count);
}

void render_planes(const render_lines& table, const rgb_planes<const float>& in, const rgb_planes<float>& out,
                   std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(planes_here)(table, in, out, count);
}

} // namespace ov1::row_kernel

#endif
