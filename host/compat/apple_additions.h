// What the desktop's frameworks lack of the system's: included ahead of every file of the bridge.
#pragma once

#ifdef __OBJC__

#import <Foundation/Foundation.h>

typedef struct
{
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;

@interface NSProcessInfo (apple_additions)
/// The kernel's release.
- (NSOperatingSystemVersion)operatingSystemVersion;
@end

@interface NSUserDefaults (apple_additions)
/// Values of one domain alone.
- (instancetype)initWithSuiteName:(NSString*)name;
@end

#endif
