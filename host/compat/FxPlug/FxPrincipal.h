// Starts the service process of a plug-in.
#pragma once

#import <Foundation/Foundation.h>

@protocol FxPrincipalDelegate
@optional
- (void)didEstablishConnectionWithHost:(NSString*)hostBundleIdentifier version:(NSString*)hostVersionString;
@end

/// Here without a video host: both methods print that on stderr and end the process with status 1.
@interface FxPrincipal : NSObject
+ (void)startServicePrincipal;
+ (void)startServicePrincipalWithDelegate:(id<FxPrincipalDelegate>)delegate;
@end
