// Whom the service tells of its connections.
#pragma once

#import <FxPlug/FxPlugSDK.h>

/// Notes who the host is, for host/connected_host.h.
@interface FCPXDelegate : NSObject <FxPrincipalDelegate>
- (void)didEstablishConnectionWithHost:(NSString*)hostBundleIdentifier version:(NSString*)hostVersionString;
@end
