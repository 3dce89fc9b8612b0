// Surfaces and tiles made from pictures, and pictures from surfaces.
#pragma once

#include "host/simulator/rgba_picture.h"

#import <FxPlug/FxPlugSDK.h>

namespace ov1
{

/// A new surface with a part of the picture; rows end with so many bytes of padding. The caller owns it.
IOSurface* make_surface(const rgba_picture& picture, const picture_part& part, surface_format format,
                        std::size_t padding) NS_RETURNS_RETAINED;
/// A surface of a part's size with zeros.
IOSurface* make_empty_surface(const picture_part& part, surface_format format, std::size_t padding) NS_RETURNS_RETAINED;

/// Puts a surface's pixels into a part of the picture.
void take_surface(IOSurface* surface, surface_format format, rgba_picture& picture, const picture_part& part);

/// A tile of the part, whose image is the whole picture, with its origin at the top left. The caller owns it.
FxImageTile* make_tile(IOSurface* surface, const rgba_picture& picture, const picture_part& part) NS_RETURNS_RETAINED;

} // namespace ov1
