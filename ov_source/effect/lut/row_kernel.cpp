// Compiled once for every instruction set: foreach_target.h includes this file again for each.
#include "effect/lut/row_kernel.h"

#include "platform/highway_targets.h" // before Highway

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "effect/lut/row_kernel.cpp"
#include <hwy/foreach_target.h> // before highway.h, by its own rule

#include "effect/lut/half_vectors-inl.h"
#include "effect/lut/interpolation-inl.h"
#include "effect/lut/pixel_access-inl.h"

#include <hwy/cache_control.h>
#include <hwy/highway.h>

#include <algorithm>

HWY_BEFORE_NAMESPACE();
namespace ov1::row_kernel
{
namespace HWY_NAMESPACE
{

#if HWY_TARGET == HWY_SCALAR || HWY_TARGET == HWY_EMU128

// Without vectors: the lookup itself.

void argb_here(const render_table& table, const argb_float* in, argb_float* out, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        out[i] = table.get_table().lookup(in[i]);
}

void half_here(const render_table& table, const half_bits* in, half_bits* out, std::size_t count)
{
    for (; count > 0; --count, in += 4, out += 4)
    {
        const argb_float to =
            table.get_table().lookup({1.0f, half_to_float(in[0]), half_to_float(in[1]), half_to_float(in[2])});
        out[0] = float_to_half(to.r);
        out[1] = float_to_half(to.g);
        out[2] = float_to_half(to.b);
        out[3] = float_to_half(to.a);
    }
}

void planes_here(const render_table& table, const rgb_planes<const float>& in, const rgb_planes<float>& out,
                 std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
    {
        const argb_float to = table.get_table().lookup({1.0f, in.r[i], in.g[i], in.b[i]});
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

/// What to bring into the cache while a chunk is interpolated. A prefetch needs no valid address.
struct cache_plan
{
    const char* next_in;
    const char* next_out;
    std::size_t bytes_per_group; ///< 0 for nothing
};

/// How many chunks ahead, so that memory answers in time: measured on frames larger than any cache. Lines that are only
/// written are fetched from memory too.
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

/// Interpolates n places in whole groups and calls take(index of the group's first place, colours) for each group.
template <layout form, class function>
HWY_INLINE void interpolate(const float* lines, const chunk_places& places, std::size_t n, const cache_plan& plan,
                            const function& take)
{
    constexpr std::size_t cache_line = 64;
    std::size_t ahead = 0;
    for (std::size_t i = 0; i < n; i += group_pixels)
    {
        // A step for each group, so that the requests are spread over the chunk.
        for (const std::size_t end = ahead + plan.bytes_per_group; ahead < end; ahead += cache_line)
        {
            hwy::Prefetch(plan.next_in + ahead);
            hwy::Prefetch(plan.next_out + ahead);
        }
        take(i, interpolate_group<form>(lines, places, i));
    }
}

/// Calls render(first pixel, number of pixels) for every chunk of a row.
template <class function>
HWY_INLINE void each_chunk(std::size_t count, const function& render)
{
    for (std::size_t first = 0; first < count; first += chunk_pixels)
        render(first, std::min(chunk_pixels, count - first));
}

template <layout form>
void render_argb_row(const float* lines, const float* in, float* out, std::size_t count)
{
    chunk_places places;
    each_chunk(count,
               [&](std::size_t first, std::size_t n) HWY_ATTR
               {
                   const float* from = in + 4 * first;
                   float* to = out + 4 * first;
                   place_all<form>(interleaved_source<1>{from}, n, places);
                   const std::size_t whole = n - n % group_pixels;
                   interpolate<form>(lines, places, whole, plan_for(from, to, 4),
                                     [&](std::size_t i, const group_colours& colours) HWY_ATTR
                                     { store(colours, to + 4 * i); });
                   if (whole == n)
                       return;
                   // The last group is short: it is computed whole, and only its pixels are copied.
                   float rest[4 * group_pixels];
                   store(interpolate_group<form>(lines, places, whole), rest);
                   std::copy(rest, rest + 4 * (n - whole), to + 4 * whole);
               });
}

template <layout form>
void render_half_row(const float* lines, const half_bits* in, half_bits* out, std::size_t count)
{
    chunk_places places;
    chunk_colours colours = {};
    each_chunk(count,
               [&](std::size_t first, std::size_t n) HWY_ATTR
               {
                   const half_bits* from = in + 4 * first;
                   half_bits* to = out + 4 * first;
                   widen_all(from, 4 * n, colours.values);
                   // Results replace the widened colours: all places are known by then. The buffer has room for whole
                   // groups.
                   place_all<form>(interleaved_source<0>{colours.values}, n, places);
                   interpolate<form>(lines, places, n, plan_for(from, to, 4),
                                     [&](std::size_t i, const group_colours& group) HWY_ATTR
                                     { store(group, colours.values + 4 * i); });
                   narrow_all(colours.values, 4 * n, to);
               });
}

template <layout form>
void render_plane_row(const float* lines, const rgb_planes<const float>& in, const rgb_planes<float>& out,
                      std::size_t count)
{
    chunk_places places;
    each_chunk(count,
               [&](std::size_t first, std::size_t n) HWY_ATTR
               {
                   const planar_source from{{in.r + first, in.g + first, in.b + first}};
                   const rgb_planes<float> to{out.r + first, out.g + first, out.b + first};
                   place_all<form>(from, n, places);
                   const std::size_t whole = n - n % group_pixels;
                   // Callers pass planes in pieces that are in the cache already: nothing to fetch.
                   interpolate<form>(lines, places, whole, {nullptr, nullptr, 0},
                                     [&](std::size_t i, const group_colours& colours) HWY_ATTR
                                     { store(colours, to, i); });
                   if (whole == n)
                       return;
                   // As in render_argb_row: a whole group is computed, its pixels are copied.
                   float rest[3][group_pixels];
                   store(interpolate_group<form>(lines, places, whole), {rest[0], rest[1], rest[2]}, 0);
                   std::copy(rest[0], rest[0] + (n - whole), to.r + whole);
                   std::copy(rest[1], rest[1] + (n - whole), to.g + whole);
                   std::copy(rest[2], rest[2] + (n - whole), to.b + whole);
               });
}

/// The layout is a template argument of the loops, so that they do not test it for each pixel.
bool has_deltas(const render_table& table) { return table.get_layout() == layout::with_deltas; }

void argb_here(const render_table& table, const argb_float* in, argb_float* out, std::size_t count)
{
    const auto render = has_deltas(table) ? render_argb_row<layout::with_deltas> : render_argb_row<layout::lines_only>;
    render(table.get_lines(), &in->a, &out->a, count);
}

void half_here(const render_table& table, const half_bits* in, half_bits* out, std::size_t count)
{
    const auto render = has_deltas(table) ? render_half_row<layout::with_deltas> : render_half_row<layout::lines_only>;
    render(table.get_lines(), in, out, count);
}

void planes_here(const render_table& table, const rgb_planes<const float>& in, const rgb_planes<float>& out,
                 std::size_t count)
{
    const auto render =
        has_deltas(table) ? render_plane_row<layout::with_deltas> : render_plane_row<layout::lines_only>;
    render(table.get_lines(), in, out, count);
}

#endif

} // namespace HWY_NAMESPACE
} // namespace ov1::row_kernel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace ov1::row_kernel
{

// A table of the compiled versions; the first call looks for the best one that the processor has.
HWY_EXPORT(argb_here);
HWY_EXPORT(half_here);
HWY_EXPORT(planes_here);

void render_argb(const render_table& table, const argb_float* in, argb_float* out, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(argb_here)(table, in, out, count);
}

void render_half(const render_table& table, const half_bits* in, half_bits* out, std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(half_here)(table, in, out, count);
}

void render_planes(const render_table& table, const rgb_planes<const float>& in, const rgb_planes<float>& out,
                   std::size_t count)
{
    HWY_DYNAMIC_DISPATCH(planes_here)(table, in, out, count);
}

} // namespace ov1::row_kernel

#endif
