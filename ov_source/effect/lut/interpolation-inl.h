// Groups of pixels: their places in the render table, and the interpolation there. Included once for every instruction
// set, by the loops over rows.
// A row is rendered in chunks, each in two passes. place() turns colours into places: the line of the lower corner, and
// three fractions. interpolate_group() then reads the lines and interpolates. The operations are those of trilinear.h
// in the same order, and the compiler may not fuse them, so every instruction set gives the same bits.
#if defined(OV1_EFFECT_INTERPOLATION_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef OV1_EFFECT_INTERPOLATION_INL_H
#undef OV1_EFFECT_INTERPOLATION_INL_H
#else
#define OV1_EFFECT_INTERPOLATION_INL_H
#endif

#include "effect/lut/row_kernel.h"

#include "platform/highway_targets.h" // before Highway

#include <hwy/highway.h>

#include <cstddef>
#include <cstdint>

HWY_BEFORE_NAMESPACE();
namespace ov1::row_kernel
{
namespace HWY_NAMESPACE
{

#if HWY_TARGET != HWY_SCALAR && HWY_TARGET != HWY_EMU128

namespace hn = hwy::HWY_NAMESPACE;

using layout = render_table::layout;
using wide = hn::CappedTag<float, 8>; ///< a group of pixels
/// A pixel, in the order a, r, g, b.
using colour = hn::CappedTag<float, 4>;
using wide_vector = hn::Vec<wide>;

/// Small enough for the places and colours of a chunk to stay in the first-level cache.
constexpr std::size_t chunk_pixels = 128;
constexpr std::size_t group_pixels = hn::MaxLanes(wide()); ///< 8, or 4 where vectors are short

/// Where the pixels of a chunk fall in the render table. Fractions are 0 <= f < 1.
struct alignas(64) chunk_places
{
    float red[chunk_pixels]; ///< fractions
    float green[chunk_pixels];
    float blue[chunk_pixels];
    std::uint32_t line[chunk_pixels]; ///< in bytes from the first line
};

/// The colours of a group, four lanes a pixel in the table's order. Vector k holds the pixels whose places are k and
/// k + 4 of the group, or the pixel of place k where groups are of four.
struct group_colours
{
    wide_vector vectors[4];
};

/// The same values by channel.
struct group_channels
{
    wide_vector r, g, b;
};

/// The channels of a group: in lane k the pixel of place k. red_member tells which of a colour's four values is red;
/// green and blue follow it. Only neighbouring values are exchanged, which is why group_colours has its order.
template <std::size_t red_member>
HWY_INLINE group_channels channels_of(const group_colours& colours)
{
    const wide d;
    const hn::Repartition<double, wide> two_floats;
    const auto& [v0, v1, v2, v3] = colours.vectors;
    // A transposition in two steps: pairs of floats of two pixels, then pairs of pairs.
    const auto channels_01_lower = hn::BitCast(two_floats, hn::InterleaveLower(d, v0, v1));
    const auto channels_01_upper = hn::BitCast(two_floats, hn::InterleaveLower(d, v2, v3));
    const auto channels_23_lower = hn::BitCast(two_floats, hn::InterleaveUpper(d, v0, v1));
    const auto channels_23_upper = hn::BitCast(two_floats, hn::InterleaveUpper(d, v2, v3));
    const auto lower = [&](auto x, auto y) HWY_ATTR { return hn::BitCast(d, hn::InterleaveLower(two_floats, x, y)); };
    const auto upper = [&](auto x, auto y) HWY_ATTR { return hn::BitCast(d, hn::InterleaveUpper(two_floats, x, y)); };
    const auto channel_1 = upper(channels_01_lower, channels_01_upper);
    const auto channel_2 = lower(channels_23_lower, channels_23_upper);
    if constexpr (red_member == 1)
        return {channel_1, channel_2, upper(channels_23_lower, channels_23_upper)};
    else
        return {lower(channels_01_lower, channels_01_upper), channel_1, channel_2};
}

/// grid_position_of in vectors, with the same limits: 0 to the last grid point, and 0 for a NaN.
HWY_INLINE wide_vector on_axis(wide_vector channel)
{
    const wide d;
    const auto last = hn::Set(d, static_cast<float>(lut_edge - 1));
    const auto x = hn::Mul(channel, last);
#if HWY_ARCH_X86
    const auto positive = hn::Max(x, hn::Zero(d)); // the instruction is x > 0 ? x : 0, so a NaN gives 0
#else
    const auto positive = hn::IfThenElseZero(hn::Gt(x, hn::Zero(d)), x);
#endif
    return hn::Min(positive, last);
}

/// Stores the places of a group at index i.
template <layout form>
HWY_INLINE void place(const group_channels& pixels, std::size_t i, chunk_places& places)
{
    const wide d;
    const hn::RebindToUnsigned<wide> whole;
    const auto x = on_axis(pixels.r), y = on_axis(pixels.g), z = on_axis(pixels.b);
    // Positions are not negative, so truncating rounds down. At the last grid point the fraction is 0, and the line
    // repeats its lower corners (render_table.h): no upper corner needs a limit.
    const auto lower_r = hn::Trunc(x), lower_g = hn::Trunc(y), lower_b = hn::Trunc(z);
    hn::Store(hn::Sub(x, lower_r), d, places.red + i);
    hn::Store(hn::Sub(y, lower_g), d, places.green + i);
    hn::Store(hn::Sub(z, lower_b), d, places.blue + i);

    // The byte offset is computed in floats, which hold whole numbers below 2^23 exactly, and then read from the bits:
    // adding 2^23 moves it into the low ones. On x86 multiplying 32-bit integers is slower.
    // Bytes from one grid point to the next along blue.
    constexpr float point = render_table::floats_per_point(form) * sizeof(float);
    constexpr float to_low_bits = 0x1p23f;
    constexpr std::uint32_t bits_of_2_23 = 0x4b000000;
    const auto red_bytes = hn::Mul(lower_r, hn::Set(d, point * lut_edge * lut_edge));
    const auto green_bytes = hn::Mul(lower_g, hn::Set(d, point * lut_edge));
    const auto blue_bytes = hn::Mul(lower_b, hn::Set(d, point));
    const auto bytes = hn::Add(hn::Add(red_bytes, green_bytes), blue_bytes);
    const auto bits = hn::BitCast(whole, hn::Add(bytes, hn::Set(d, to_low_bits)));
    hn::Store(hn::Sub(bits, hn::Set(whole, bits_of_2_23)), whole, places.line + i);
}

/// The line of the pixel at place i.
HWY_INLINE const float* line_at(const float* lines, const chunk_places& places, std::size_t i)
{
    return reinterpret_cast<const float*>(reinterpret_cast<const char*>(lines) + places.line[i]);
}

/// lerp of trilinear.h in all lanes.
template <class V>
HWY_INLINE V between(V from, V to, V fraction)
{
    return hn::Add(from, hn::Mul(hn::Sub(to, from), fraction));
}

/// Part of a line interpolated towards the next red plane.
template <layout form, class D>
HWY_INLINE hn::Vec<D> along_red(D d, const float* line, hn::Vec<D> fraction)
{
    const auto from = hn::Load(d, line);
    // A stored delta is the difference that the other layout computes here, so both layouts give the same bits.
    if constexpr (form == layout::with_deltas)
        return hn::Add(from, hn::Mul(hn::Load(d, line + render_table::floats_per_line), fraction));
    else
        return between(from, hn::Load(d, line + render_table::floats_per_line * lut_edge * lut_edge), fraction);
}

#if HWY_MAX_BYTES >= 32

/// A pixel interpolated along red and green: the lower blue corner in the lower half, the upper one in the upper half.
template <layout form>
HWY_INLINE wide_vector along_red_and_green(const float* lines, const chunk_places& places, std::size_t i)
{
    const wide d;
    const float* line = line_at(lines, places, i);
#if HWY_MAX_BYTES >= 64
    // A whole line in one vector: red is interpolated for all four corners at once.
    const hn::CappedTag<float, 16> all;
    const auto corners = along_red<form>(all, line, hn::Set(all, places.red[i]));
    const auto lower = hn::LowerHalf(d, corners), upper = hn::UpperHalf(d, corners);
#else
    // Eight floats are the corners at b and b + 1. The next eight are those of the green neighbours.
    const auto fraction = hn::Set(d, places.red[i]);
    const auto lower = along_red<form>(d, line, fraction), upper = along_red<form>(d, line + 8, fraction);
#endif
    return between(lower, upper, hn::Set(d, places.green[i]));
}

/// Two pixels of a group, interpolated along red and green.
struct pixel_pair
{
    wide_vector first;
    wide_vector second;
};

/// The pixels at places i and i + 4, without their last step.
template <layout form>
HWY_INLINE pixel_pair begin_pair(const float* lines, const chunk_places& places, std::size_t i)
{
    return {along_red_and_green<form>(lines, places, i), along_red_and_green<form>(lines, places, i + 4)};
}

/// Interpolates pair number `pair` of a group along blue. blue holds the fractions of the group.
template <int pair>
HWY_INLINE wide_vector end_pair(const pixel_pair& pixels, wide_vector blue)
{
    const wide d;
    // The lower halves hold the corners at b, the upper ones those at b + 1. Joined by kind, both pixels take one
    // operation. Broadcast acts on each block of four lanes: the second block gets the fraction of the second pixel.
    const auto lower = hn::ConcatLowerLower(d, pixels.second, pixels.first);
    const auto upper = hn::ConcatUpperUpper(d, pixels.second, pixels.first);
    return between(lower, upper, hn::Broadcast<pair>(blue));
}

/// The colours at places i to i + group_pixels - 1. All pairs begin before the first one ends, so that more loads are
/// under way at the same time.
template <layout form>
HWY_INLINE group_colours interpolate_group(const float* lines, const chunk_places& places, std::size_t i)
{
    const auto blue = hn::Load(wide(), places.blue + i);
    const auto pair_0 = begin_pair<form>(lines, places, i);
    const auto pair_1 = begin_pair<form>(lines, places, i + 1);
    const auto pair_2 = begin_pair<form>(lines, places, i + 2);
    const auto pair_3 = begin_pair<form>(lines, places, i + 3);
    return {
        {end_pair<0>(pair_0, blue), end_pair<1>(pair_1, blue), end_pair<2>(pair_2, blue), end_pair<3>(pair_3, blue)}};
}

#else

/// The colour at place i, where a vector holds one pixel.
template <layout form>
HWY_INLINE wide_vector interpolate_pixel(const float* lines, const chunk_places& places, std::size_t i)
{
    // Four lanes: the channels of one pixel.
    const colour d;
    const float* line = line_at(lines, places, i);
    const auto red = hn::Set(d, places.red[i]), green = hn::Set(d, places.green[i]);
    // Corners as in render_table.h: (g, b), (g, b+1), (g+1, b), (g+1, b+1).
    const auto corner = [&](std::size_t k) HWY_ATTR { return along_red<form>(d, line + 4 * k, red); };
    const auto lower = between(corner(0), corner(2), green), upper = between(corner(1), corner(3), green);
    return between(lower, upper, hn::Set(d, places.blue[i]));
}

/// The colours at places i to i + 3.
template <layout form>
HWY_INLINE group_colours interpolate_group(const float* lines, const chunk_places& places, std::size_t i)
{
    return {{interpolate_pixel<form>(lines, places, i), interpolate_pixel<form>(lines, places, i + 1),
             interpolate_pixel<form>(lines, places, i + 2), interpolate_pixel<form>(lines, places, i + 3)}};
}

#endif

#endif

} // namespace HWY_NAMESPACE
} // namespace ov1::row_kernel
HWY_AFTER_NAMESPACE();

#endif
