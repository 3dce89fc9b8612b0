// A frame as the screen shows it: 8 bits a channel, and scaled to the zoom.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ov1
{

class image;
struct argb_float;

/// Opaque pixels in rows from the top, without padding. A pixel is 0xffRRGGBB: blue, green, red, 255 in memory.
struct display_picture
{
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint32_t> pixels;

    bool is_empty() const { return pixels.empty(); }
    const std::uint32_t* row(std::uint32_t y) const { return pixels.data() + std::size_t{y} * width; }
};

/// Channels of a display_picture's pixel, 0..255.
inline std::uint8_t red_of(std::uint32_t pixel) { return static_cast<std::uint8_t>(pixel >> 16); }
inline std::uint8_t green_of(std::uint32_t pixel) { return static_cast<std::uint8_t>(pixel >> 8); }
inline std::uint8_t blue_of(std::uint32_t pixel) { return static_cast<std::uint8_t>(pixel); }

/// Converts a row of count pixels. Channels are limited to 0..1 and rounded to the nearest of 256 codes; a NaN gives 0;
/// alpha is ignored.
void convert_row_to_display(const argb_float* from, std::uint32_t* to, std::size_t count);

/// Converts a whole frame on all cores, its rows from the top whatever its origin. target's storage is reused where it
/// is large enough. The frame's pixels are argb_float.
void convert_to_display(const image& frame, display_picture& target);

/// A part of the zoomed picture, in screen pixels.
struct display_window
{
    double left = 0; ///< the first visible column, counted from the zoomed picture's left edge
    double top = 0;  ///< the first visible row, from its upper edge
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    double zoom = 1; ///< screen pixels for each picture pixel; above 0
};

/// Writes the window's pixels to target, rows row_bytes apart, on all cores. Below a zoom of 1 a screen pixel is the
/// mean of the area under it, between 1 and 2 it is interpolated linearly, and from 2 on each picture pixel is a
/// square. Outside the picture the nearest edge pixel is used.
void draw_zoomed(const display_picture& picture, const display_window& shown, std::uint8_t* target,
                 std::size_t row_bytes);

} // namespace ov1
