#include "framework/window_factory.h"

#include <map>
#include <mutex>
#include <utility>

namespace ov1
{

namespace
{

std::mutex maker_mutex;

window_maker& installed_maker()
{
    static window_maker maker;
    return maker;
}

/// A copy, so that no lock is held while a window is made.
window_maker copy_maker()
{
    const std::scoped_lock guard(maker_mutex);
    return installed_maker();
}

} // namespace

window_factory::window_factory(std::string icon)
    : icon(std::move(icon))
{
}

window_factory& window_factory::get_instance(const std::string& icon)
{
    static std::mutex mutex;
    // Never destroyed: windows may still be open during exit.
    static std::map<std::string, std::unique_ptr<window_factory>>& factories =
        *new std::map<std::string, std::unique_ptr<window_factory>>;
    const std::scoped_lock guard(mutex);
    auto& factory = factories[icon];
    // Made under the lock: two threads get the same factory.
    if (!factory)
        factory.reset(new window_factory(icon));
    return *factory;
}

std::shared_ptr<window> window_factory::create_window(const rect& size, const std::string& title, void* parent)
{
    const window_maker maker = copy_maker();
    return maker ? maker(icon, size, title, parent) : nullptr;
}

void install_window_maker(window_maker maker)
{
    const std::scoped_lock guard(maker_mutex);
    installed_maker() = std::move(maker);
}

} // namespace ov1
