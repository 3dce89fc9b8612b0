#include "host/bridge/dirty_queue.h"

namespace ov1
{

void dirty_queue::add(int place)
{
    const std::scoped_lock guard(lock);
    places.insert(place);
}

int dirty_queue::pop()
{
    const std::scoped_lock guard(lock);
    return places.empty() ? nothing : places.extract(places.begin()).value();
}

} // namespace ov1
