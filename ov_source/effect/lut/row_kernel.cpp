// Compiled once for every instruction set: foreach_target.h includes this file again for each.
#include "effect/lut/row_kernel.h"

#include "platform/highway_targets.h" // before Highway

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "effect/lut/row_kernel.cpp"
#include <hwy/foreach_target.h> // before highway.h, by its own rule

#include "effect/lut/half_vectors-inl.h"
#include "effect/lut/interpolation-inl.h"

#include <hwy/cache_control.h>
#include <hwy/highway.h>

#include <algorithm>

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

struct alignas(64) chunk_colours
{
    float values[4 * chunk_pixels];
};

/// What to bring into the cache while a chunk is interpolated. Prefetching needs no valid address.
struct cache_plan
{
    const char* next_in;
    const char* next_out;
    std::size_t bytes_per_group;
};

/// Interpolates n places, in whole groups, and hands over each group's colours: take(first pixel, colours).
template <bool with_deltas, class function>
HWY_INLINE void interpolate(const float* lines, const chunk_places& places, std::size_t n, const cache_plan& plan,
                            const function& take)
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
        take(i, interpolate_group<with_deltas>(lines, places, i));
    }
}

/// Pixels of four floats; red is the one at first_colour. A vector holds neighbours, so of the places of 8 pixels the
/// first four are those of pixels 0 2 4 6.
template <std::size_t first_colour>
struct interleaved_source
{
    const float* in;

    /// The group that begins at pixel i.
    HWY_INLINE group_channels load(std::size_t i) const
    {
        const wide d;
        const auto from = [&](std::size_t k) HWY_ATTR { return hn::LoadU(d, in + 4 * i + k * group_pixels); };
        return channels_of<first_colour>({{from(0), from(1), from(2), from(3)}});
    }

    /// Fewer pixels than a group, from i to n; the others are zeros.
    HWY_INLINE group_channels load_rest(std::size_t i, std::size_t n) const
    {
        float rest[4 * group_pixels] = {};
        std::copy(in + 4 * i, in + 4 * n, rest);
        return interleaved_source{rest}.load(0);
    }
};

HWY_INLINE void store(const group_colours& colours, float* out)
{
    const wide d;
    for (std::size_t k = 0; k < 4; ++k)
        hn::StoreU(colours.vectors[k], d, out + k * group_pixels);
}

/// A row of each channel; places are in the order of pixels.
struct planar_source
{
    rgb_planes<const float> in;

    HWY_INLINE group_channels load(std::size_t i) const
    {
        const wide d;
        return {hn::LoadU(d, in.r + i), hn::LoadU(d, in.g + i), hn::LoadU(d, in.b + i)};
    }

    HWY_INLINE group_channels load_rest(std::size_t i, std::size_t n) const
    {
        float rest[3][group_pixels] = {};
        std::copy(in.r + i, in.r + n, rest[0]);
        std::copy(in.g + i, in.g + n, rest[1]);
        std::copy(in.b + i, in.b + n, rest[2]);
        return planar_source{{rest[0], rest[1], rest[2]}}.load(0);
    }
};

HWY_INLINE void store(const group_colours& colours, const rgb_planes<float>& out, std::size_t i)
{
    const wide d;
    const group_channels channels = channels_of<1>(colours);
    hn::StoreU(channels.r, d, out.r + i);
    hn::StoreU(channels.g, d, out.g + i);
    hn::StoreU(channels.b, d, out.b + i);
}

/// The places of the first n pixels, in whole groups.
template <bool with_deltas, class source>
HWY_INLINE void place_all(const source& from, std::size_t n, chunk_places& places)
{
    std::size_t i = 0;
    for (; i + group_pixels <= n; i += group_pixels)
        place<with_deltas>(from.load(i), i, places);
    if (i < n)
        place<with_deltas>(from.load_rest(i, n), i, places);
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
                   interpolate<with_deltas>(lines, places, whole, plan_for(from, to, 4),
                                            [&](std::size_t i, const group_colours& colours) HWY_ATTR
                                            { store(colours, to + 4 * i); });
                   if (whole == n)
                       return;
                   float rest[4 * group_pixels];
                   store(interpolate_group<with_deltas>(lines, places, whole), rest);
                   std::copy(rest, rest + 4 * (n - whole), to + 4 * whole);
               });
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
                   interpolate<with_deltas>(lines, places, n, plan_for(from, to, 4),
                                            [&](std::size_t i, const group_colours& group) HWY_ATTR
                                            { store(group, colours.values + 4 * i); });
                   narrow_all(colours.values, 4 * n, to);
               });
}

template <bool with_deltas>
void render_plane_rows(const float* lines, const rgb_planes<const float>& in, const rgb_planes<float>& out,
                       std::size_t count)
{
    chunk_places places;
    each_chunk(count,
               [&](std::size_t first, std::size_t n) HWY_ATTR
               {
                   const planar_source from{{in.r + first, in.g + first, in.b + first}};
                   const rgb_planes<float> to{out.r + first, out.g + first, out.b + first};
                   place_all<with_deltas>(from, n, places);
                   const std::size_t whole = n - n % group_pixels;
                   // Planes come in pieces that are in the cache already: there is nothing to fetch.
                   interpolate<with_deltas>(lines, places, whole, {nullptr, nullptr, 0},
                                            [&](std::size_t i, const group_colours& colours) HWY_ATTR
                                            { store(colours, to, i); });
                   if (whole == n)
                       return;
                   float rest[3][group_pixels];
                   store(interpolate_group<with_deltas>(lines, places, whole), {rest[0], rest[1], rest[2]}, 0);
                   std::copy(rest[0], rest[0] + (n - whole), to.r + whole);
                   std::copy(rest[1], rest[1] + (n - whole), to.g + whole);
                   std::copy(rest[2], rest[2] + (n - whole), to.b + whole);
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
