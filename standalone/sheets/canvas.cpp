#include "standalone/sheets/canvas.h"

namespace ov1
{

canvas::canvas(std::size_t width, std::size_t height, const argb_float& background)
    : width(width)
    , height(height)
    , pixels(width * height, background)
{
}

void canvas::blend(std::size_t x, std::size_t y, const argb_float& colour, float cover)
{
    // Also catches coordinates left of or above the canvas: unsigned, they are huge.
    if (x >= width || y >= height)
        return;
    argb_float& p = pixels[y * width + x];
    p = {1.0f, p.r + (colour.r - p.r) * cover, p.g + (colour.g - p.g) * cover, p.b + (colour.b - p.b) * cover};
}

void canvas::paint(std::size_t x, std::size_t y, const argb_float* from, std::size_t from_width,
                   std::size_t from_height)
{
    for (std::size_t j = 0; j < from_height; ++j)
        for (std::size_t i = 0; i < from_width; ++i)
        {
            const argb_float& p = from[j * from_width + i];
            blend(x + i, y + j, p, p.a);
        }
}

} // namespace ov1
