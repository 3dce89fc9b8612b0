// The picture that a scope is drawn as, and the few shapes it is drawn with.
#pragma once

#include "shared/rect.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace ov1
{

/// Channels 0..255 of a screen.
struct scope_colour
{
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;
};

inline constexpr scope_colour scope_background{22, 22, 22};
inline constexpr scope_colour graticule_colour{58, 58, 58};
inline constexpr scope_colour limit_colour{92, 92, 92}; ///< the lines at 0 and 1
inline constexpr scope_colour clip_colour{255, 84, 64};

/// Opaque pixels in rows from the top, without padding; in memory blue, green, red, 255.
struct scope_picture
{
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    /// Takes a size, neither side negative, and fills it with the background; storage is used again.
    void reset(int new_width, int new_height);

    std::uint32_t* row(int y) { return pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width); }
    const std::uint32_t* row(int y) const
    {
        return pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
    }
};

/// A pixel moved towards a colour, as far as the cover (0..1) goes.
inline std::uint32_t blended(std::uint32_t pixel, const scope_colour& colour, float cover)
{
    const auto share = static_cast<std::int32_t>(cover * 256);
    const auto moved = [share](std::uint32_t from, std::int32_t to)
    {
        return static_cast<std::uint32_t>(
            (static_cast<std::int32_t>(from) * 256 + (to - static_cast<std::int32_t>(from)) * share) >> 8);
    };
    return 0xff000000u | moved(pixel >> 16 & 255, colour.r) << 16 | moved(pixel >> 8 & 255, colour.g) << 8 |
           moved(pixel & 255, colour.b);
}

/// Shapes in pixels, the upper left corner of the picture at 0, 0; what lies outside is cut off.
void paint_rect(scope_picture& picture, const rect& area, const scope_colour& colour, float cover = 1);
/// A smooth line from point to point.
void paint_line(scope_picture& picture, double x0, double y0, double x1, double y1, double thickness,
                const scope_colour& colour);
void paint_circle(scope_picture& picture, double x, double y, double radius, double thickness,
                  const scope_colour& colour);
/// The frame of a square around a point, reach to either side.
void paint_frame(scope_picture& picture, double x, double y, double reach, double thickness,
                 const scope_colour& colour);

} // namespace ov1
