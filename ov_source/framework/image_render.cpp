#include "framework/image_render.h"

#include "framework/row_renderer.h"
#include "platform/rows.h"
#include "shared/image.h"

namespace ov1
{

namespace
{

bool are_alike(const image& a, const image& b)
{
    return a.get_width() == b.get_width() && a.get_height() == b.get_height() && a.get_origin() == b.get_origin() &&
           a.get_pixel_type() == image::pixel_type::argb_f32 && b.get_pixel_type() == image::pixel_type::argb_f32;
}

} // namespace

bool render_image(const row_renderer& renderer, const image& source, image& destination)
{
    if (!are_alike(source, destination))
        return false;
    const std::uint32_t width = source.get_width(), height = source.get_height();
    const bool upside_down = source.get_origin() == image::origin::bottom_left;
    const auto render_rows = [&](std::size_t first, std::size_t end)
    {
        for (std::size_t row = first; row < end; ++row)
        {
            const auto memory_row = static_cast<std::uint32_t>(row);
            renderer.render_row(upside_down ? height - 1 - row : row,
                                reinterpret_cast<const argb_float*>(source.row(memory_row)),
                                reinterpret_cast<argb_float*>(destination.row(memory_row)), width);
        }
    };
    for_each_picture_piece(width, height, 0, render_rows);
    return true;
}

} // namespace ov1
