// The class of surfaces, on systems without IOSurface: memory of this process.
#pragma once

#import <Foundation/Foundation.h>
#include <IOSurface/IOSurface.h>

#include <atomic>
#include <vector>

/// For simulated hosts and tests: what they say of a surface is taken as it is, so that wrong ones can be made.
struct surface_shape
{
    std::size_t width;
    std::size_t height;
    OSType pixel_format;
    std::size_t bytes_per_element;
    std::size_t bytes_per_row;
};

/// Locks are counted, from any thread; the pixels begin as zeros.
@interface IOSurface : NSObject
{
    surface_shape shape;
    std::vector<std::byte> bytes;
    std::atomic<bool> refused;
    std::atomic<int> readers;
    std::atomic<int> writers;
    std::atomic<int> wrong;
}
- (instancetype)initWithShape:(surface_shape)shape;
/// From now on locks fail, or succeed again.
- (void)refuseLocks:(BOOL)refuse;
/// Locks that have not been undone, and unlocks whose options were not those of the lock.
- (int)openLocks;
- (int)wrongUnlocks;
- (void*)pixels;
- (surface_shape)shape;
@end
