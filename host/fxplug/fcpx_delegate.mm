#import "host/fxplug/fcpx_delegate.h"

#include "host/bridge/connected_host.h"
#include "host/fxplug/bundle_info.h"

@implementation FCPXDelegate

- (instancetype)init
{
    return [super init];
}

- (void)didEstablishConnectionWithHost:(NSString*)hostBundleIdentifier version:(NSString*)hostVersionString
{
    using namespace ov1;
    // A nil text gives an empty name and the version 0.0.0.
    set_connected_host({cfstring_to_string(hostBundleIdentifier, NSUTF8StringEncoding),
                        version_from_text(cfstring_to_string(hostVersionString, NSUTF8StringEncoding))});
}

@end
