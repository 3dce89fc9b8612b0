// Errors in the video host's error domain.
#pragma once

#include "host/bridge/bridge_texts.h"

#import <Foundation/Foundation.h>

namespace ov1
{

/// Stores an autoreleased error, unless the host passed null. The detail is appended to the description.
void store_error(NSError** where, const bridge_error& error, const char* detail = "");

} // namespace ov1
