// The host's surfaces: their layout, and loops over their rows on several threads.
#pragma once

#include "host/bridge/pixel_loops.h"

#import <FxPlug/FxPlugSDK.h>
#include <dispatch/dispatch.h>

#include <cstddef>

namespace ov1
{

/// The tile's surface for the C interface; null when it has none. The tile owns it.
IOSurfaceRef surface_of(FxImageTile* tile);

/// No option: for reading and writing.
inline constexpr auto lock_for_writing = static_cast<IOSurfaceLockOptions>(0);

/// Reads the layout of a locked surface.
surface_layout layout_of(IOSurfaceRef surface);

/// Calls row(y) once per row, in parallel on the system's high-priority queue. Returns when all rows are done.
template <typename function>
void for_each_row(std::size_t rows, const function& row)
{
    dispatch_apply_f(rows, dispatch_get_global_queue(DISPATCH_QUEUE_PRIORITY_HIGH, 0), const_cast<function*>(&row),
                     [](void* context, std::size_t y) { (*static_cast<const function*>(context))(y); });
}

} // namespace ov1
