#include "host/fxplug/preview_capture.h"

#include "host/bridge/preview_reduction.h"
#include "host/fxplug/fx_error.h"
#include "host/fxplug/surface.h"

namespace ov1
{

namespace
{

/// Reads the surface from several threads; the caller keeps it locked.
std::shared_ptr<image> reduce(const host_frame& frame, image::origin origin)
{
    const preview_size size = preview_size_of(static_cast<std::uint32_t>(frame.layout.width),
                                              static_cast<std::uint32_t>(frame.layout.height));
    const auto preview = std::make_shared<image>(size.width, size.height, image::pixel_type::argb_f32, origin);
    for_each_row(size.height,
                 [&](std::size_t y) { fill_preview_row(frame, size, *preview, static_cast<std::uint32_t>(y)); });
    return preview;
}

} // namespace

std::shared_ptr<image> capture_preview(FxImageTile* frame, NSError** error)
{
    const IOSurfaceRef surface = surface_of(frame);
    if (surface == nullptr || IOSurfaceLock(surface, kIOSurfaceLockReadOnly, nullptr) != 0)
        return nullptr;
    // No early return below: the surface must be unlocked on every path.
    const surface_layout layout = layout_of(surface);
    const auto format = tile_format_of(layout);
    std::shared_ptr<image> preview;
    if (!format)
        store_error(error, unsupported_pixel_format);
    // An empty frame has no aspect ratio.
    else if (layout.width > 0 && layout.height > 0)
        preview = reduce({static_cast<const std::byte*>(IOSurfaceGetBaseAddress(surface)), layout, *format},
                         [frame imageOrigin] == kFxImageOrigin_TOP_LEFT ? image::origin::top_left
                                                                        : image::origin::bottom_left);
    IOSurfaceUnlock(surface, kIOSurfaceLockReadOnly, nullptr);
    return preview;
}

} // namespace ov1
