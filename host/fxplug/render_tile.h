// Renders one destination tile from the source tiles at the same position.
#pragma once

#include "framework/icomponent_v1.h"

#import <FxPlug/FxPlugSDK.h>

namespace ov1
{

/// Updates the component's table, then renders all rows through that one table. False with an error stored when a
/// source does not match the destination or the format is not supported; false without an error when the destination
/// cannot be locked. Any number of threads.
bool render_tile(icomponent_v1& component, FxImageTile* destination, NSArray* sources, NSError** error);

} // namespace ov1
