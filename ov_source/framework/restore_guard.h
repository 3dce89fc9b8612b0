// Marks the time in which a component is given back values that belong together.
#pragma once

#include "framework/icomponent_v1.h"

namespace ov1
{

/// The restore lasts as long as the scope; scopes nest, within the component's own too. The component outlives it.
class restore_guard
{
public:
    explicit restore_guard(icomponent_v1& component)
        : component(component)
    {
        component.begin_restore();
    }
    ~restore_guard() { component.end_restore(); }
    restore_guard(const restore_guard&) = delete;
    restore_guard& operator=(const restore_guard&) = delete;

private:
    icomponent_v1& component;
};

} // namespace ov1
