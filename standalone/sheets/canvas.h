// A picture to paint pictures and text on, for contact sheets.
#pragma once

#include "shared/argb_float.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ov1
{

/// Opaque pixels, display-referred code values, rows from the top. What is painted outside is cut off.
class canvas
{
public:
    canvas(std::size_t width, std::size_t height, const argb_float& background);

    std::size_t get_width() const { return width; }
    std::size_t get_height() const { return height; }
    const argb_float* row(std::size_t y) const { return pixels.data() + y * width; }

    /// Rows of a picture, without padding; straight alpha lies over what is there.
    void paint(std::size_t x, std::size_t y, const argb_float* from, std::size_t from_width, std::size_t from_height);

    /// Lays a colour over one pixel, as far as the cover (0..1) goes.
    void blend(std::size_t x, std::size_t y, const argb_float& colour, float cover);

private:
    std::size_t width;
    std::size_t height;
    std::vector<argb_float> pixels;
};

} // namespace ov1
