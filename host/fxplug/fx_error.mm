#include "host/fxplug/fx_error.h"

#import <FxPlug/FxPlugSDK.h>

namespace ov1
{

// host/bridge cannot include the host's headers, so the codes are numbers there.
static_assert(incompatible_tiles.code == kFxError_InvalidParameter);
static_assert(no_creation_api.code == kFxError_APIUnavailable);
static_assert(unsupported_pixel_format.code == kFxError_NotYetImplemented);
static_assert(no_timing_api.code == kFxError_InvalidTiming);

void store_error(NSError** where, const bridge_error& error, const char* detail)
{
    if (where == nullptr)
        return;
    NSString* const text = [NSString stringWithFormat:@"%s%s", error.description, detail];
    NSDictionary* const info = [NSDictionary dictionaryWithObject:text forKey:NSLocalizedDescriptionKey];
    *where = [NSError errorWithDomain:FxPlugErrorDomain code:error.code userInfo:info];
}

} // namespace ov1
