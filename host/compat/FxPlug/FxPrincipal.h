// The service that a plug-in runs as.
#pragma once

#import <Foundation/Foundation.h>

@protocol FxPrincipalDelegate
@optional
- (void)didEstablishConnectionWithHost:(NSString*)hostBundleIdentifier version:(NSString*)hostVersionString;
@end

/// Without a video host there is nothing to serve: both say so on stderr and end the process with status 1.
@interface FxPrincipal : NSObject
+ (void)startServicePrincipal;
+ (void)startServicePrincipalWithDelegate:(id<FxPrincipalDelegate>)delegate;
@end
