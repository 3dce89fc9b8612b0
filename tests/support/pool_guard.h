// A pool for the autoreleased objects of a test.
#pragma once

#import <Foundation/Foundation.h>

namespace ov1
{

/// Declared first, so that autoreleased objects are released after everything else.
struct pool_guard
{
    pool_guard() = default;
    ~pool_guard() { [pool drain]; }
    pool_guard(const pool_guard&) = delete;
    pool_guard& operator=(const pool_guard&) = delete;

    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
};

} // namespace ov1
