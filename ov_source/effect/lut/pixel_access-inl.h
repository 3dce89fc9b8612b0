// Groups of pixels loaded from rows and stored to them, interleaved or in planes. Included once for every instruction
// set, by the loops over rows.
#if defined(OV1_EFFECT_PIXEL_ACCESS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef OV1_EFFECT_PIXEL_ACCESS_INL_H
#undef OV1_EFFECT_PIXEL_ACCESS_INL_H
#else
#define OV1_EFFECT_PIXEL_ACCESS_INL_H
#endif

#include "effect/lut/interpolation-inl.h"

#include <algorithm>

HWY_BEFORE_NAMESPACE();
namespace ov1::row_kernel
{
namespace HWY_NAMESPACE
{

#if HWY_TARGET != HWY_SCALAR && HWY_TARGET != HWY_EMU128

/// Pixels of four floats; red_member tells which of them is red. A vector of 8 floats holds two neighbours, so the
/// first four places of a group are those of pixels 0 2 4 6. Storing group_colours vector by vector restores the row's
/// order.
template <std::size_t red_member>
struct interleaved_source
{
    /// The first pixel of the row; any alignment.
    const float* in;

    /// The group that begins at pixel i.
    HWY_INLINE group_channels load(std::size_t i) const
    {
        const wide d;
        const auto from = [&](std::size_t k) HWY_ATTR { return hn::LoadU(d, in + 4 * i + k * group_pixels); };
        return channels_of<red_member>({{from(0), from(1), from(2), from(3)}});
    }

    /// The pixels from i to n, fewer than a group; the others are zeros.
    HWY_INLINE group_channels load_rest(std::size_t i, std::size_t n) const
    {
        // A whole group is read from a copy: reading past the end of the row could touch memory that is not ours.
        float rest[4 * group_pixels] = {};
        std::copy(in + 4 * i, in + 4 * n, rest);
        return interleaved_source{rest}.load(0);
    }
};

/// Writes a whole group of four floats a pixel, alpha included.
HWY_INLINE void store(const group_colours& colours, float* out)
{
    const wide d;
    for (std::size_t k = 0; k < 4; ++k)
        hn::StoreU(colours.vectors[k], d, out + k * group_pixels);
}

/// One row for each channel; places are in the order of the pixels.
struct planar_source
{
    /// The first samples of the three rows; any alignment.
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

/// Writes a whole group to the planes from pixel i on; alpha is dropped.
HWY_INLINE void store(const group_colours& colours, const rgb_planes<float>& out, std::size_t i)
{
    const wide d;
    // In group_colours red is the second of four values.
    const group_channels channels = channels_of<1>(colours);
    hn::StoreU(channels.r, d, out.r + i);
    hn::StoreU(channels.g, d, out.g + i);
    hn::StoreU(channels.b, d, out.b + i);
}

/// The places of the first n pixels, in whole groups.
template <layout form, class source>
HWY_INLINE void place_all(const source& pixels, std::size_t n, chunk_places& places)
{
    std::size_t i = 0;
    for (; i + group_pixels <= n; i += group_pixels)
        place<form>(pixels.load(i), i, places);
    if (i < n)
        place<form>(pixels.load_rest(i, n), i, places);
}

#endif

} // namespace HWY_NAMESPACE
} // namespace ov1::row_kernel
HWY_AFTER_NAMESPACE();

#endif
