// The service's delegate: the host's framework reports connections to it.
#pragma once

#import <FxPlug/FxPlugSDK.h>

/// Stores the host's name and version in host/bridge/connected_host.h.
@interface FCPXDelegate : NSObject <FxPrincipalDelegate>
/// May come on any thread. Texts that are nil count as empty.
- (void)didEstablishConnectionWithHost:(NSString*)hostBundleIdentifier version:(NSString*)hostVersionString;
@end
