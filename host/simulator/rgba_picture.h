// A picture in memory as video hosts store it, a part of it, and the pixel formats of its surfaces.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ov1
{

/// Four floats per pixel in the order R, G, B, A. Rows from top to bottom, without padding. Values are not limited.
struct rgba_picture
{
    std::size_t width = 0;
    std::size_t height = 0;
    std::vector<float> rgba; ///< width x height x 4 values

    /// No pixels.
    rgba_picture() = default;
    /// All channels are 0, alpha too.
    rgba_picture(std::size_t width, std::size_t height)
        : width(width)
        , height(height)
        , rgba(width * height * 4)
    {
    }

    /// The four channels of a pixel; those of the row's next pixels follow.
    float* pixel(std::size_t x, std::size_t y) { return rgba.data() + 4 * (y * width + x); }
    const float* pixel(std::size_t x, std::size_t y) const { return rgba.data() + 4 * (y * width + x); }
    bool operator==(const rgba_picture&) const = default;
};

/// A rectangle within a picture, in pixels from the top left.
struct picture_part
{
    std::size_t x = 0;
    std::size_t y = 0;
    std::size_t width = 0;
    std::size_t height = 0;
};

/// The pixel formats in which hosts give tiles to an effect.
enum class surface_format
{
    half,       ///< "RGhA", 8 bytes per pixel
    full_float, ///< "RGfA", 16 bytes per pixel
};

} // namespace ov1
