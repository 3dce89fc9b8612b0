#include "host/simulator/tile_maker.h"

#include "shared/half_float.h"

#include <algorithm>
#include <cstring>

namespace ov1
{

namespace
{

// The format's own numbers, not the bridge's constants: a wrong constant there must not cancel out here.
constexpr OSType half_code = 0x52476841;  // "RGhA"
constexpr OSType float_code = 0x52476641; // "RGfA"

/// Four channels of 2 or 4 bytes.
std::size_t pixel_bytes(surface_format format) { return format == surface_format::half ? 8 : 16; }

std::byte* row_of(IOSurface* surface, std::size_t y)
{
    return static_cast<std::byte*>([surface pixels]) + y * [surface shape].bytes_per_row;
}

/// The host's rectangles count rows upwards from the picture's lower edge, whatever the origin of the pixels.
FxRect rect_of(const rgba_picture& picture, const picture_part& part)
{
    const auto height = static_cast<SInt32>(picture.height);
    const auto top = height - static_cast<SInt32>(part.y);
    return {static_cast<SInt32>(part.x), top - static_cast<SInt32>(part.height),
            static_cast<SInt32>(part.x + part.width), top};
}

} // namespace

IOSurface* make_empty_surface(const picture_part& part, surface_format format, std::size_t padding)
{
    // IOSurface sets all bytes to zero, padding included.
    const std::size_t bytes = pixel_bytes(format);
    return [[IOSurface alloc]
        initWithShape:{part.width, part.height, format == surface_format::half ? half_code : float_code, bytes,
                       part.width * bytes + padding}];
}

IOSurface* make_surface(const rgba_picture& picture, const picture_part& part, surface_format format,
                        std::size_t padding)
{
    IOSurface* const surface = make_empty_surface(part, format, padding);
    for (std::size_t y = 0; y < part.height; ++y)
    {
        const float* const in = picture.pixel(part.x, part.y + y);
        std::byte* const out = row_of(surface, y);
        if (format == surface_format::half)
            std::transform(in, in + 4 * part.width, reinterpret_cast<half_bits*>(out), float_to_half);
        else
            std::memcpy(out, in, 16 * part.width);
    }
    return surface;
}

void take_surface(IOSurface* surface, surface_format format, rgba_picture& picture, const picture_part& part)
{
    for (std::size_t y = 0; y < part.height; ++y)
    {
        const std::byte* const in = row_of(surface, y);
        float* const out = picture.pixel(part.x, part.y + y);
        if (format == surface_format::half)
        {
            const auto* const halfs = reinterpret_cast<const half_bits*>(in);
            std::transform(halfs, halfs + 4 * part.width, out, half_to_float);
        }
        else
            std::memcpy(out, in, 16 * part.width);
    }
}

FxImageTile* make_tile(IOSurface* surface, const rgba_picture& picture, const picture_part& part)
{
    return [[FxImageTile alloc] initWithSurface:surface
                                     tileBounds:rect_of(picture, part)
                                    imageBounds:rect_of(picture, {0, 0, picture.width, picture.height})
                                         origin:kFxImageOrigin_TOP_LEFT];
}

} // namespace ov1
