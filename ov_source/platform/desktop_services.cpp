#include "platform/desktop_services.h"

#include <mutex>

namespace ov1
{

namespace
{

/// Replaced as a whole: a caller keeps the services that it holds.
struct installed_services
{
    std::mutex mutex;
    std::shared_ptr<const desktop_services> services = std::make_shared<desktop_services>();
};

installed_services& installed()
{
    static installed_services& all = *new installed_services; // never destroyed, like the utilities that use it
    return all;
}

} // namespace

void install_desktop_services(desktop_services services)
{
    // Declared before the lock: the old services are destroyed after the mutex is released.
    auto next = std::make_shared<const desktop_services>(std::move(services));
    const std::scoped_lock lock(installed().mutex);
    installed().services.swap(next);
}

std::shared_ptr<const desktop_services> get_desktop_services()
{
    const std::scoped_lock lock(installed().mutex);
    return installed().services;
}

} // namespace ov1
