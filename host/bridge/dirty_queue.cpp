#include "host/bridge/dirty_queue.h"

namespace ov1
{

void dirty_queue::add(int index)
{
    const std::scoped_lock guard(lock);
    indices.insert(index);
}

int dirty_queue::pop()
{
    const std::scoped_lock guard(lock);
    return indices.empty() ? nothing : indices.extract(indices.begin()).value();
}

} // namespace ov1
