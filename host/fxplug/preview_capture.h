// A frame of the host, reduced to the editor's preview.
#pragma once

#include "shared/image.h"

#import <FxPlug/FxPlugSDK.h>

#include <memory>

namespace ov1
{

/// The frame in the order a, r, g, b, at most 1600 pixels on its longer side; null where the surface cannot be locked
/// or is empty, and, with an error stored, where its format is not read. The surface is unlocked again in every case.
std::shared_ptr<image> capture_preview(FxImageTile* frame, NSError** error);

} // namespace ov1
