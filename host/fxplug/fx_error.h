// Errors in the video host's domain.
#pragma once

#include "host/bridge/bridge_texts.h"

#import <Foundation/Foundation.h>

namespace ov1
{

/// Stores the error where the host gave a place for it. The detail follows the description.
void store_error(NSError** where, const bridge_error& error, const char* detail = "");

} // namespace ov1
