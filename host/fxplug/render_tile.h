// One destination tile, rendered from the source tiles at its place.
#pragma once

#include "framework/icomponent_v1.h"

#import <FxPlug/FxPlugSDK.h>

namespace ov1
{

/// Brings the component up to date, then renders every row through one table. False with an error stored where the
/// tiles do not fit one another or their format is not read, and without one where the destination cannot be locked.
/// Any thread, and several at once.
bool render_tile(icomponent_v1& component, FxImageTile* destination, NSArray* sources, NSError** error);

} // namespace ov1
