#include "host/fxplug/surface.h"

namespace ov1
{

// On macOS the class and the C type are one and the same object (toll-free bridged).
IOSurfaceRef surface_of(FxImageTile* tile) { return reinterpret_cast<IOSurfaceRef>([tile ioSurface]); }

surface_layout layout_of(IOSurfaceRef surface)
{
    return {IOSurfaceGetBytesPerRow(surface), IOSurfaceGetBytesPerElement(surface), IOSurfaceGetWidth(surface),
            IOSurfaceGetHeight(surface), IOSurfaceGetPixelFormat(surface)};
}

} // namespace ov1
