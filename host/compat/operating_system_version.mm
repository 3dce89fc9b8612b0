#include <cstdio>
#include <sys/utsname.h>

extern "C" const int operating_system_version_is_linked = 1;

@implementation NSProcessInfo (apple_additions)

- (NSOperatingSystemVersion)operatingSystemVersion
{
    utsname names;
    long numbers[3] = {};
    if (uname(&names) == 0)
        // "6.1.0-18-amd64" gives 6, 1 and 0. Parts that are missing stay 0.
        std::sscanf(names.release, "%ld.%ld.%ld", &numbers[0], &numbers[1], &numbers[2]);
    return {numbers[0], numbers[1], numbers[2]};
}

@end
