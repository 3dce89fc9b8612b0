#include "framework/editor_factory.h"

#include "framework/iview_v1.h"

#include <mutex>
#include <utility>

namespace ov1
{

namespace
{

/// The one factory of the process.
struct installed_factory
{
    std::mutex lock;
    editor_factory factory;
};

installed_factory& installed()
{
    static installed_factory one;
    return one;
}

} // namespace

void install_editor_factory(editor_factory factory)
{
    const std::scoped_lock guard(installed().lock);
    installed().factory = std::move(factory);
}

std::shared_ptr<iview_v1> create_editor(std::weak_ptr<icomponent_v1> component)
{
    // A copy, so that the lock is not held while the editor is created.
    editor_factory factory;
    {
        const std::scoped_lock guard(installed().lock);
        factory = installed().factory;
    }
    return factory ? factory(std::move(component)) : nullptr;
}

} // namespace ov1
