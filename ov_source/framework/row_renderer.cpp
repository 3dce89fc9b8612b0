#include "framework/row_renderer.h"

#include "shared/clamp.h"

#include <vector>

namespace ov1
{

void row_renderer::render_row_half(std::size_t y, const half_bits* in, half_bits* out, std::size_t count) const
{
    std::vector<argb_float> row(count); // one call for the whole row: a renderer counts columns from 0
    for (argb_float& pixel : row)
    {
        // Halves come as R, G, B, A, pixels are A, R, G, B.
        pixel = clamped({half_to_float(in[3]), half_to_float(in[0]), half_to_float(in[1]), half_to_float(in[2])});
        in += 4;
    }
    render_row(y, row.data(), row.data(), count);
    for (const argb_float& pixel : row)
        for (const float value : {pixel.r, pixel.g, pixel.b, pixel.a})
            *out++ = float_to_half(value);
}

void row_renderer::render_row_planes(std::size_t y, const rgb_planes<float>& row, std::size_t count) const
{
    // Opaque, because planes have no alpha.
    std::vector<argb_float> pixels(count);
    for (std::size_t x = 0; x < count; ++x)
        pixels[x] = {1.0f, row.r[x], row.g[x], row.b[x]};
    render_row(y, pixels.data(), pixels.data(), count);
    for (std::size_t x = 0; x < count; ++x)
    {
        row.r[x] = pixels[x].r;
        row.g[x] = pixels[x].g;
        row.b[x] = pixels[x].b;
    }
}

} // namespace ov1
