// Makes surfaces and tiles from pictures, and copies surfaces back into pictures.
#pragma once

#include "host/simulator/rgba_picture.h"

#import <FxPlug/FxPlugSDK.h>

namespace ov1
{

/// A new surface with the pixels of a part. `padding` is the number of unused bytes after each row; it must keep rows
/// at multiples of a channel's size. The caller owns the surface.
IOSurface* make_surface(const rgba_picture& picture, const picture_part& part, surface_format format,
                        std::size_t padding) NS_RETURNS_RETAINED;
/// A new surface of a part's size whose pixels are zero. The caller owns it.
IOSurface* make_empty_surface(const picture_part& part, surface_format format, std::size_t padding) NS_RETURNS_RETAINED;

/// Copies a surface's pixels into a part of the picture, which has the surface's size and format.
void take_surface(IOSurface* surface, surface_format format, rgba_picture& picture, const picture_part& part);

/// A tile at the place of the part; its image is the whole picture, with the origin at the top left. The surface may be
/// nil. The caller owns the tile.
FxImageTile* make_tile(IOSurface* surface, const rgba_picture& picture, const picture_part& part) NS_RETURNS_RETAINED;

} // namespace ov1
