// A picture as the video host holds it, and its surfaces.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace ov1
{

/// Four floats a pixel in the order R, G, B, A, row by row from the top, without padding.
struct rgba_picture
{
    std::size_t width = 0;
    std::size_t height = 0;
    std::vector<float> rgba;

    rgba_picture() = default;
    rgba_picture(std::size_t width, std::size_t height)
        : width(width)
        , height(height)
        , rgba(width * height * 4)
    {
    }

    float* pixel(std::size_t x, std::size_t y) { return rgba.data() + 4 * (y * width + x); }
    const float* pixel(std::size_t x, std::size_t y) const { return rgba.data() + 4 * (y * width + x); }
    bool operator==(const rgba_picture&) const = default;
};

/// A part of a picture in pixels.
struct picture_part
{
    std::size_t x = 0;
    std::size_t y = 0;
    std::size_t width = 0;
    std::size_t height = 0;
};

enum class surface_format
{
    half,      ///< "RGhA"
    full_float ///< "RGfA"
};

} // namespace ov1
