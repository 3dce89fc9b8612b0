// The part of libdispatch that the bridge uses, for systems without it.
// Source: developer.apple.com, "Dispatch".
#pragma once

#include <cstddef>
#include <cstdint>

extern "C"
{

    typedef struct dispatch_queue_s* dispatch_queue_t;

#define DISPATCH_QUEUE_PRIORITY_HIGH 2
#define DISPATCH_QUEUE_PRIORITY_DEFAULT 0
#define DISPATCH_QUEUE_PRIORITY_LOW (-2)
#define DISPATCH_QUEUE_PRIORITY_BACKGROUND INT16_MIN

    /// Null for an unknown priority and for flags other than 0.
    dispatch_queue_t dispatch_get_global_queue(std::intptr_t priority, std::uintptr_t flags);

    /// Calls work(context, i) once for each i below the count, on several threads, and returns when all are done. The
    /// queue's priority is ignored: all queues use the same threads.
    void dispatch_apply_f(std::size_t iterations, dispatch_queue_t queue, void* context,
                          void (*work)(void* context, std::size_t iteration));

} // extern "C"
