#include "host/fxplug/render_tile.h"

#include "framework/ihost_v1.h"
#include "framework/row_renderer.h"
#include "host/fxplug/fx_error.h"
#include "host/fxplug/surface.h"

namespace ov1
{

namespace
{

/// Chooses the loop once per tile instead of once per row.
void render_rows(const row_renderer& renderer, tile_format format, const tile_pair& tile)
{
    if (format == tile_format::rgba_half)
        for_each_row(tile.height, [&](std::size_t y) { render_half_row(renderer, tile, y); });
    else
        for_each_row(tile.height, [&](std::size_t y) { render_float_row(renderer, tile, y); });
}

/// Renders a locked source into the locked destination.
bool render_source(const row_renderer& renderer, IOSurfaceRef source, IOSurfaceRef destination, NSError** error)
{
    const surface_layout layout = layout_of(destination);
    // The whole layout, bytes per row included: one layout then describes both surfaces.
    if (layout_of(source) != layout)
    {
        store_error(error, incompatible_tiles);
        return false;
    }
    const auto format = tile_format_of(layout);
    if (!format)
    {
        store_error(error, unsupported_pixel_format);
        return false;
    }
    render_rows(renderer, *format,
                {static_cast<const std::byte*>(IOSurfaceGetBaseAddress(source)),
                 static_cast<std::byte*>(IOSurfaceGetBaseAddress(destination)), layout.bytes_per_row,
                 layout.bytes_per_row, layout.width, layout.height});
    return true;
}

} // namespace

bool render_tile(icomponent_v1& component, FxImageTile* destination, NSArray* sources, NSError** error)
{
    const auto host = component.get_host();
    // The component has terminated: the host released the instance during a render.
    if (!host)
        return false;
    host->notify({event_kind::render_begins});
    const IOSurfaceRef to = surface_of(destination);
    if (to == nullptr || IOSurfaceLock(to, lock_for_writing, nullptr) != 0)
        return false;
    // After render_begins, which brings the table up to date, and once: all rows of the tile use the same table even if
    // the user edits meanwhile.
    const auto renderer = component.get_row_renderer();
    for (FxImageTile* source in sources)
    {
        const IOSurfaceRef from = surface_of(source);
        if (from == nullptr || IOSurfaceLock(from, kIOSurfaceLockReadOnly, nullptr) != 0)
            continue; // the tile keeps what the host put there
        // Both surfaces stay locked and no end event is sent. This is meant: the host abandons such a tile together
        // with its surfaces.
        if (!render_source(*renderer, from, to, error))
            return false;
        IOSurfaceUnlock(from, kIOSurfaceLockReadOnly, nullptr);
    }
    host->notify({event_kind::preview_rendered});
    host->notify({event_kind::render_ended});
    IOSurfaceUnlock(to, lock_for_writing, nullptr);
    return true;
}

} // namespace ov1
