// Declarations that Apple's Foundation has and GNUstep's lacks. The build includes it before every Objective-C++ file.
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
/// The version of the Linux kernel.
- (NSOperatingSystemVersion)operatingSystemVersion;
@end

@interface NSUserDefaults (apple_additions)
/// The values of one domain only, without the standard search list.
- (instancetype)initWithSuiteName:(NSString*)name;
@end

#endif
