// The value of the host's "State" parameter, as documents archive it.
#pragma once

#import <FxPlug/FxPlugSDK.h>

#include <cstdint>
#include <vector>

/// Holds the payload of host/bridge/state_payload.h, archived under the key "fcp_wrapper_state_v1". Two values always
/// compare equal and are never blended between keyframes. This is meant: a state cannot be animated.
@interface fcpx_state_param : NSObject <NSSecureCoding, NSCopying, FxCustomParameterInterpolation_v2>
{
    NSData* data;
}
@property(retain) NSData* data;

/// Sets what new values start with: the initial state of the newest instance. One value for the whole process. Any
/// thread.
+ (void)setDefaultState:(const std::vector<std::uint8_t>&)state;
@end
