// The value of the host's "State" parameter, as documents archive it.
#pragma once

#import <FxPlug/FxPlugSDK.h>

#include <cstdint>
#include <vector>

/// Carries the payload of host/state_payload.h under the key "fcp_wrapper_state_v1". Two of them are always reported
/// equal and are never blended, by design: a state is no curve.
@interface fcpx_state_param : NSObject <NSSecureCoding, NSCopying, FxCustomParameterInterpolation_v2>
{
    NSData* data;
}
@property(retain) NSData* data;

/// What new values start with, for the whole process and from any thread: the state of the newest instance at its
/// making.
+ (void)setDefaultState:(const std::vector<std::uint8_t>&)state;
@end
