#include "framework/image_render.h"

#include "framework/render_rows.h"
#include "shared/image.h"

namespace ov1
{

namespace
{

/// Whether rows of one can be rendered into rows of the other.
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
    // Both images have the same step: rows follow each other without padding.
    const std::size_t row_length = source.get_bytes_per_row() / sizeof(argb_float);
    render_rows(renderer,
                {.in = reinterpret_cast<const argb_float*>(source.pixels()),
                 .out = reinterpret_cast<argb_float*>(destination.pixels()),
                 .in_step = row_length,
                 .out_step = row_length,
                 .width = source.get_width(),
                 .height = source.get_height(),
                 .is_bottom_up = source.get_origin() == image::origin::bottom_left},
                // One thread per processor.
                0);
    return true;
}

} // namespace ov1
