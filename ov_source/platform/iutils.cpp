#include "platform/iutils.h"

#include <atomic>

namespace ov1
{

namespace
{

/// Null while the system's utilities are in use.
std::atomic<iutils*> replacement_instance = nullptr;

} // namespace

iutils& iutils::get_instance()
{
    // Acquire, so that this thread sees a completely constructed replacement.
    if (iutils* replacement = replacement_instance.load(std::memory_order_acquire))
        return *replacement;
    // Never destroyed: destructors that run after main may still use it.
    static iutils& system_instance = *make_system_utils().release();
    return system_instance;
}

iutils* iutils::exchange_instance(iutils* replacement)
{
    return replacement_instance.exchange(replacement, std::memory_order_acq_rel);
}

} // namespace ov1
