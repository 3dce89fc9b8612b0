// The C interface of IOSurface, for systems without it.
// Source: developer.apple.com, "IOSurface".
#pragma once

#include <cstddef>
#include <cstdint>

extern "C"
{

    using kern_return_t = int;
    using OSType = std::uint32_t; // four characters, the first in the highest byte
    using IOSurfaceLockOptions = std::uint32_t;

    enum : IOSurfaceLockOptions
    {
        kIOSurfaceLockReadOnly = 1,
        kIOSurfaceLockAvoidSync = 2,
    };

    /// A pointer to an object of the class IOSurface.
    typedef struct __IOSurface* IOSurfaceRef;

    /// Return 0 on success. A surface that was locked with the read-only option must be unlocked with it. The seed may
    /// be null.
    kern_return_t IOSurfaceLock(IOSurfaceRef surface, IOSurfaceLockOptions options, std::uint32_t* seed);
    kern_return_t IOSurfaceUnlock(IOSurfaceRef surface, IOSurfaceLockOptions options, std::uint32_t* seed);
    void* IOSurfaceGetBaseAddress(IOSurfaceRef surface);
    std::size_t IOSurfaceGetBytesPerRow(IOSurfaceRef surface);
    std::size_t IOSurfaceGetBytesPerElement(IOSurfaceRef surface);
    std::size_t IOSurfaceGetWidth(IOSurfaceRef surface);
    std::size_t IOSurfaceGetHeight(IOSurfaceRef surface);
    OSType IOSurfaceGetPixelFormat(IOSurfaceRef surface);

} // extern "C"
