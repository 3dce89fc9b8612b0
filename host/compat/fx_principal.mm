#import <FxPlug/FxPrincipal.h>

#include <cstdio>
#include <cstdlib>

// On macOS the call never returns. Here it must not return either: callers have nothing to do afterwards.
@implementation FxPrincipal

+ (void)startServicePrincipal
{
    [self startServicePrincipalWithDelegate:nil];
}

+ (void)startServicePrincipalWithDelegate:(id<FxPrincipalDelegate>)delegate
{
    std::fputs("veridialfcpx: no video host can start this service here (veridial-host simulates one)\n", stderr);
    std::exit(EXIT_FAILURE);
}

@end
