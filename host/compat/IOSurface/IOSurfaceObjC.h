// The class IOSurface, for systems without it. The pixels are ordinary memory of this process.
#pragma once

#import <Foundation/Foundation.h>
#include <IOSurface/IOSurface.h>

#include <atomic>
#include <vector>

/// For the simulator and tests. The values are not checked, so that inconsistent surfaces can be made.
struct surface_shape
{
    std::size_t width;
    std::size_t height;
    OSType pixel_format;
    std::size_t bytes_per_element;
    std::size_t bytes_per_row;
};

/// Counts locks, from any thread. The pixels are zero at first.
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
/// Locks without an unlock, and unlocks whose options differ from the lock's.
- (int)openLocks;
- (int)wrongUnlocks;
/// The surface owns the memory; no lock is needed.
- (void*)pixels;
- (surface_shape)shape;
@end
