// Captures a frame of the host as the editor's preview image.
#pragma once

#include "shared/image.h"

#import <FxPlug/FxPlugSDK.h>

#include <memory>

namespace ov1
{

/// The frame as a, r, g, b floats, at most 1600 pixels on its longer side. Null when the surface cannot be locked or is
/// empty; null with an error stored when its format is not supported. The surface is always unlocked again.
std::shared_ptr<image> capture_preview(FxImageTile* frame, NSError** error);

} // namespace ov1
