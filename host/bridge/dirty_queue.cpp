#include "host/bridge/dirty_queue.h"

namespace ov1
{

void dirty_queue::add(int index)
{
    const std::scoped_lock guard(lock);
    // A set: a parameter that changes many times is written to the host once, with its last value.
    indices.insert(index);
}

int dirty_queue::pop()
{
    const std::scoped_lock guard(lock);
    // The lowest first, so that the host gets its undo steps in the same order each time.
    return indices.empty() ? nothing : indices.extract(indices.begin()).value();
}

} // namespace ov1
