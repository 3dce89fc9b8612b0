#include "framework/render_rows.h"

#include "framework/row_renderer.h"
#include "platform/rows.h"

namespace ov1
{

namespace
{

/// Calls render(y, in, out) once for each row.
template <typename element, typename function>
void for_each_row_of(const picture_rows<element>& picture, unsigned max_threads, const function& render)
{
    const auto render_piece = [&](std::size_t first, std::size_t end)
    {
        // Rows are taken in the order of memory; the renderer counts them from the top.
        for (std::size_t row = first; row < end; ++row)
            render(picture.is_bottom_up ? picture.height - 1 - row : row, picture.in + row * picture.in_step,
                   picture.out + row * picture.out_step);
    };
    for_each_picture_piece(picture.width, picture.height, max_threads, render_piece);
}

} // namespace

void render_rows(const row_renderer& renderer, const picture_rows<argb_float>& picture, unsigned max_threads)
{
    for_each_row_of(picture, max_threads, [&](std::size_t y, const argb_float* in, argb_float* out)
                    { renderer.render_row(y, in, out, picture.width); });
}

void render_rows(const row_renderer& renderer, const picture_rows<half_bits>& picture, unsigned max_threads)
{
    for_each_row_of(picture, max_threads, [&](std::size_t y, const half_bits* in, half_bits* out)
                    { renderer.render_row_half(y, in, out, picture.width); });
}

} // namespace ov1
