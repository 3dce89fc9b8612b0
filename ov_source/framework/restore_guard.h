// Marks the time during which saved values are restored to a component.
#pragma once

#include "framework/icomponent_v1.h"

namespace ov1
{

/// The restore lasts while the guard exists. Guards may be nested, also inside the component's own. The component must
/// outlive the guard.
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
