#import <IOSurface/IOSurfaceObjC.h>

@interface IOSurface ()
- (kern_return_t)lockWithOptions:(IOSurfaceLockOptions)options;
- (kern_return_t)unlockWithOptions:(IOSurfaceLockOptions)options;
@end

@implementation IOSurface

- (instancetype)initWithShape:(surface_shape)wanted
{
    if ((self = [super init]))
    {
        shape = wanted;
        // Zeros. The shape is used as given, also if it is inconsistent.
        bytes.resize(wanted.bytes_per_row * wanted.height);
    }
    return self;
}

- (void)refuseLocks:(BOOL)refuse
{
    refused = refuse;
}
- (int)openLocks
{
    return readers + writers;
}
- (int)wrongUnlocks
{
    return wrong;
}
- (void*)pixels
{
    return bytes.data();
}
- (surface_shape)shape
{
    return shape;
}

- (kern_return_t)lockWithOptions:(IOSurfaceLockOptions)options
{
    // Counted only: nothing is protected, since tests want to find a missing unlock, not a data race.
    if (refused)
        return -1;
    ++(options & kIOSurfaceLockReadOnly ? readers : writers);
    return 0;
}

- (kern_return_t)unlockWithOptions:(IOSurfaceLockOptions)options
{
    // Below zero: no lock with this option was open.
    if (--(options & kIOSurfaceLockReadOnly ? readers : writers) < 0)
        ++wrong;
    return 0;
}

@end

namespace
{

IOSurface* object_of(IOSurfaceRef surface) { return reinterpret_cast<IOSurface*>(surface); }

} // namespace

// A message to nil returns 0, which would mean a successful lock.
extern "C" kern_return_t IOSurfaceLock(IOSurfaceRef surface, IOSurfaceLockOptions options, std::uint32_t*)
{
    return surface == nullptr ? -1 : [object_of(surface) lockWithOptions:options];
}

extern "C" kern_return_t IOSurfaceUnlock(IOSurfaceRef surface, IOSurfaceLockOptions options, std::uint32_t*)
{
    return surface == nullptr ? -1 : [object_of(surface) unlockWithOptions:options];
}

extern "C" void* IOSurfaceGetBaseAddress(IOSurfaceRef surface) { return [object_of(surface) pixels]; }
extern "C" std::size_t IOSurfaceGetBytesPerRow(IOSurfaceRef surface)
{
    return [object_of(surface) shape].bytes_per_row;
}
extern "C" std::size_t IOSurfaceGetBytesPerElement(IOSurfaceRef surface)
{
    return [object_of(surface) shape].bytes_per_element;
}
extern "C" std::size_t IOSurfaceGetWidth(IOSurfaceRef surface) { return [object_of(surface) shape].width; }
extern "C" std::size_t IOSurfaceGetHeight(IOSurfaceRef surface) { return [object_of(surface) shape].height; }
extern "C" OSType IOSurfaceGetPixelFormat(IOSurfaceRef surface) { return [object_of(surface) shape].pixel_format; }
