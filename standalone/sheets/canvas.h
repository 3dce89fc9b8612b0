// A picture on which contact sheets and scopes are painted.
#pragma once

#include "shared/argb_float.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ov1
{

/// Opaque pixels, display-referred code values, top row first. Pixels outside are clipped.
class canvas
{
public:
    /// The alpha of the background is kept as given; what is painted makes pixels opaque.
    canvas(std::size_t width, std::size_t height, const argb_float& background);

    std::size_t get_width() const { return width; }
    std::size_t get_height() const { return height; }
    /// Row y and all rows below it, without padding. Valid during the life of the canvas.
    const argb_float* row(std::size_t y) const { return pixels.data() + y * width; }

    /// Paints rows without padding; straight alpha is blended over the canvas.
    void paint(std::size_t x, std::size_t y, const argb_float* from, std::size_t from_width, std::size_t from_height);

    /// Blends a colour over one pixel; cover (0..1) is its weight, its alpha is ignored.
    void blend(std::size_t x, std::size_t y, const argb_float& colour, float cover);

private:
    std::size_t width;
    std::size_t height;
    std::vector<argb_float> pixels;
};

} // namespace ov1
