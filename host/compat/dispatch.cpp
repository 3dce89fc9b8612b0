#include <dispatch/dispatch.h>

#include "platform/rows.h"

// Queues only name a priority here.
struct dispatch_queue_s
{
    std::intptr_t priority;
};

extern "C" dispatch_queue_t dispatch_get_global_queue(std::intptr_t priority, std::uintptr_t flags)
{
    static dispatch_queue_s queues[] = {{DISPATCH_QUEUE_PRIORITY_HIGH},
                                        {DISPATCH_QUEUE_PRIORITY_DEFAULT},
                                        {DISPATCH_QUEUE_PRIORITY_LOW},
                                        {DISPATCH_QUEUE_PRIORITY_BACKGROUND}};
    // The flags are reserved: with any other value there is no queue.
    if (flags == 0)
        for (dispatch_queue_s& queue : queues)
            if (queue.priority == priority)
                return &queue;
    return nullptr;
}

extern "C" void dispatch_apply_f(std::size_t iterations, dispatch_queue_t, void* context,
                                 void (*work)(void* context, std::size_t iteration))
{
    // Returns when all iterations are done, as callers expect. The queue's priority is ignored.
    ov1::for_each_row_piece(iterations, 1, 0,
                            [&](std::size_t first, std::size_t end)
                            {
                                for (std::size_t i = first; i < end; ++i)
                                    work(context, i);
                            });
}
