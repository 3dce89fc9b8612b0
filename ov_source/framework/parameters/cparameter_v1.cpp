#include "framework/parameters/cparameter_v1.h"

#include "framework/icomponent_v1.h"
#include "framework/ihost_v1.h"
#include "framework/iview_v1.h"
#include "framework/parameters/parameter_text.h"

#include <utility>

namespace ov1
{

namespace
{

/// A record of a kind, otherwise zero.
param_value blank(param_type type)
{
    param_value v;
    v.type = type;
    return v;
}

/// The record with its value clamped to its own bounds.
param_value bounced(param_value v)
{
    v.bounce_and_quantize(v);
    return v;
}

/// The component's record lock; a lock of its own for a parameter without a component.
std::shared_ptr<std::mutex> lock_of(const std::weak_ptr<icomponent_v1>& component)
{
    const auto owner = component.lock();
    return owner ? owner->get_record_lock() : std::make_shared<std::mutex>();
}

/// Empty for a component without a host.
std::weak_ptr<ihost_v1> host_of(const std::weak_ptr<icomponent_v1>& component)
{
    const auto owner = component.lock();
    return owner ? owner->get_host() : nullptr;
}

/// Whether kind or value differ; defaults and bounds are not compared.
bool differ(const param_value& x, const param_value& y)
{
    return x.type != y.type || !same_value(x.type, x.value, y.value);
}

} // namespace

cparameter_v1::cparameter_v1(std::weak_ptr<icomponent_v1> component, std::string name, param_type type)
    : component(std::move(component))
    , name(std::move(name))
    , id(make_uid(this->name))
    , lock(lock_of(this->component))
    , value(blank(type))
    , host(host_of(this->component))
{
}

cparameter_v1::cparameter_v1(std::weak_ptr<icomponent_v1> component, std::string name, const param_value& initial)
    : cparameter_v1(std::move(component), std::move(name), initial.type)
{
    value = previous = bounced(initial);
}

bool cparameter_v1::query_interface(const std::string& name, iobject** out)
{
    return answer_query(ifc_id, this, name, out);
}

std::string cparameter_v1::get_name() const { return name; }

uid cparameter_v1::get_uid() const { return id; }

param_type cparameter_v1::get_type() const
{
    const std::scoped_lock guard(*lock);
    return value.type;
}

void cparameter_v1::set_enabled(bool b)
{
    {
        // The lock is released before the host is notified.
        const std::scoped_lock guard(*lock);
        if (b == enabled)
            return;
        enabled = b;
    }
    if (const auto listening = host.lock())
        listening->notify({event_kind::enabled_changed, id});
}

bool cparameter_v1::get_enabled()
{
    const std::scoped_lock guard(*lock);
    return enabled;
}

param_value cparameter_v1::get_param_value()
{
    const std::scoped_lock guard(*lock);
    return value;
}

void cparameter_v1::set_param_value(param_value v, bool edit)
{
    const outcome taken = take(v);
    if (taken == outcome::dropped)
        return;
    if (const auto listening = host.lock())
        listening->notify({edit ? event_kind::edited : event_kind::changed, id});
    if (taken == outcome::changed)
        notify_view(edit);
}

/// Checks and stores a record under the lock. The caller notifies host and view afterwards.
cparameter_v1::outcome cparameter_v1::take(param_value v)
{
    const std::scoped_lock guard(*lock);
    // Clamped to the bounds in v, which may be new ones, before it is checked.
    value.bounce_and_quantize(v);
    if (!enabled || !value.is_valid(v))
        return outcome::dropped;
    previous = std::exchange(value, v);
    if (!value.is_default_value())
        is_reset = false;
    return differ(value, previous) ? outcome::changed : outcome::unchanged;
}

void cparameter_v1::notify_view(bool edit)
{
    // The view may have gone with its component.
    const auto owner = component.lock();
    const auto view = owner ? owner->get_view() : nullptr;
    if (view)
        view->set_control_from_parameter(shared_from_this(), edit);
}

param_value cparameter_v1::get_previous_param_value()
{
    const std::scoped_lock guard(*lock);
    return previous;
}

bool cparameter_v1::is_dirty()
{
    const std::scoped_lock guard(*lock);
    return differ(value, previous);
}

void cparameter_v1::reset_to_default()
{
    param_value v = get_param_value();
    v.value = v.default_value;
    set_param_value(v, false);
    // After the set, which clears the flag for any other value, and also if the set was ignored.
    const std::scoped_lock guard(*lock);
    is_reset = true;
}

bool cparameter_v1::get_is_reset()
{
    const std::scoped_lock guard(*lock);
    return is_reset;
}

bool cparameter_v1::get_is_default()
{
    const std::scoped_lock guard(*lock);
    return value.is_default_value();
}

bool cparameter_v1::get_string_from_value(param_value v, std::string& out, int precision)
{
    // The base class's record: a derived class may override get_param_value.
    return cparameter_v1::get_param_value().is_valid(v) && text_from_value(v, precision, out);
}

bool cparameter_v1::get_value_from_string(std::string text, param_value& v)
{
    return cparameter_v1::get_param_value().is_valid(v) && value_from_text(text, v);
}

std::uint32_t cparameter_v1::get_flags() const { return 0; }

} // namespace ov1
