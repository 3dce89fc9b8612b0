// The picture that a scope is drawn into, and the shapes it consists of.
#pragma once

#include "shared/rect.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace ov1
{

/// Screen codes 0..255.
struct scope_colour
{
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;
};

// Greys without a hue, so that they do not influence how the eye judges a colour.
inline constexpr scope_colour scope_background{22, 22, 22};
inline constexpr scope_colour graticule_colour{58, 58, 58};
inline constexpr scope_colour limit_colour{92, 92, 92}; ///< the lines at 0 and 1
/// Marks columns with clipped pixels.
inline constexpr scope_colour clip_colour{255, 84, 64};

/// Opaque pixels, top row first, without padding; bytes in memory: blue, green, red, 255.
struct scope_picture
{
    int width = 0;
    int height = 0;
    /// width * height values 0xffRRGGBB.
    std::vector<std::uint32_t> pixels;

    /// Sets the size, neither side negative, and fills the picture with the background. Keeps its memory.
    void reset(int new_width, int new_height);

    /// The start of a row; 0 is the top row, and y must be below the height.
    std::uint32_t* row(int y) { return pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width); }
    const std::uint32_t* row(int y) const
    {
        return pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
    }
};

/// A pixel blended with a colour; cover 0 gives the pixel, 1 the colour.
inline std::uint32_t blended(std::uint32_t pixel, const scope_colour& colour, float cover)
{
    // Fixed point with 8 fraction bits, exact for cover 0 and 1.
    const auto share = static_cast<std::int32_t>(cover * 256);
    const auto moved = [share](std::uint32_t from, std::int32_t to)
    {
        return static_cast<std::uint32_t>(
            (static_cast<std::int32_t>(from) * 256 + (to - static_cast<std::int32_t>(from)) * share) >> 8);
    };
    return 0xff000000u | moved(pixel >> 16 & 255, colour.r) << 16 | moved(pixel >> 8 & 255, colour.g) << 8 |
           moved(pixel & 255, colour.b);
}

/// Shapes in pixels; 0, 0 is the upper left corner of the picture. Parts outside the picture are clipped.
void paint_rect(scope_picture& picture, const rect& area, const scope_colour& colour, float cover = 1);
/// An antialiased line between two points.
void paint_line(scope_picture& picture, double x0, double y0, double x1, double y1, double thickness,
                const scope_colour& colour);
/// The outline of a circle; the radius is that of the middle of the line.
void paint_circle(scope_picture& picture, double x, double y, double radius, double thickness,
                  const scope_colour& colour);
/// The outline of a square around a point; reach is half its side.
void paint_frame(scope_picture& picture, double x, double y, double reach, double thickness,
                 const scope_colour& colour);

} // namespace ov1
