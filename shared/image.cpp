#include "shared/image.h"

#include "shared/argb_float.h"

namespace ov1
{

// The number of bytes is a std::size_t, because that of a large frame exceeds 32 bits. make_unique sets all to zero.
image::image(std::uint32_t width, std::uint32_t height, pixel_type type, origin from)
    : data(std::make_unique<std::byte[]>(std::size_t{width} * height * sizeof(argb_float)))
    , width(width)
    , height(height)
    , bytes_per_row(width * static_cast<std::uint32_t>(sizeof(argb_float)))
    , type(type)
    , first_row(from)
{
}

} // namespace ov1
