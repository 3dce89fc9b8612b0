#include "scopes/signal_levels.h"

#include "shared/clamp.h"

namespace ov1
{

namespace
{

// Simple loops over one to three arrays, so that the compiler vectorises them.

using signal_plane = std::array<float, signal_levels::most>;

/// Levels per unit of a signal.
constexpr auto scale = static_cast<float>(last_level);

/// The nearest whole number of a value that is not negative.
/// Converts through a signed integer: x86 has no vector conversion to unsigned ones before AVX-512.
std::uint32_t rounded(float v) { return static_cast<std::uint32_t>(static_cast<std::int32_t>(v + 0.5f)); }

void read_plane(const signal_plane& signal, std::size_t count, signal_levels::plane& levels)
{
    for (std::size_t i = 0; i < count; ++i)
        levels[i] = rounded(signal[i] * scale);
}

std::uint32_t difference_level(float difference)
{
    // 0 is at level 128, not at the middle 127.5, so that +0.5 exceeds the last level and is clamped.
    const float place = difference * scale + difference_centre;
    return rounded(place < scale ? place : scale);
}

} // namespace

void read_levels(const argb_float* pixels, std::size_t count, const signal_selection& selection, signal_levels& levels)
{
    // One array per channel, so that the loops below read consecutive floats.
    signal_plane r, g, b;
    for (std::size_t i = 0; i < count; ++i)
    {
        r[i] = clamped(pixels[i].r);
        g[i] = clamped(pixels[i].g);
        b[i] = clamped(pixels[i].b);
    }
    if (selection.channels)
    {
        read_plane(r, count, levels.r);
        read_plane(g, count, levels.g);
        read_plane(b, count, levels.b);
    }
    if (selection.luma)
        for (std::size_t i = 0; i < count; ++i)
            levels.luma[i] = rounded(luma_of(r[i], g[i], b[i]) * scale);
    if (selection.difference)
        for (std::size_t i = 0; i < count; ++i)
        {
            const colour_difference d = colour_difference_of(r[i], g[i], b[i]);
            levels.difference[i] =
                difference_level(d.cr) * static_cast<std::uint32_t>(level_count) + difference_level(d.cb);
        }
}

} // namespace ov1
