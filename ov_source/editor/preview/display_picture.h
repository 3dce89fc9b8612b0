// A preview frame as the screen takes it: 8 bits a channel, and reduced or enlarged to the size that is shown.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ov1
{

class image;
struct argb_float;

/// Opaque pixels in rows from the top, without padding; in memory blue, green, red, 255.
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

/// A row of pixels. Channels are limited to 0..1 and rounded to the nearest of 256 values, a NaN gives 0; alpha is
/// ignored.
void convert_row_to_display(const argb_float* from, std::uint32_t* to, std::size_t count);

/// Replaces target by the frame, on all cores, row by row as above. Storage of the same size is used again.
void convert_to_display(const image& frame, display_picture& target);

/// A part of the picture as it looks at one zoom, in screen pixels.
struct display_window
{
    double left = 0; ///< the first column shown, in screen pixels from the left edge of the zoomed picture
    double top = 0;
    std::uint32_t width = 0; ///< what is shown, in screen pixels
    std::uint32_t height = 0;
    double zoom = 1; ///< screen pixels for each of the picture's; above 0
};

/// Writes the window's pixels to target, row by row, each row_bytes after the one before, on all cores. A zoom below 1
/// averages all that falls on a pixel, between 1 and 2 it interpolates, and from 2 on the picture's pixels show as
/// squares. Beyond the picture its edge continues.
void draw_zoomed(const display_picture& picture, const display_window& shown, std::uint8_t* target,
                 std::size_t row_bytes);

} // namespace ov1
