#include "framework/parameters/cparameter_boolean_v1.h"

#include <utility>

namespace ov1
{

cparameter_boolean_v1::cparameter_boolean_v1(std::weak_ptr<icomponent_v1> component, std::string name,
                                             bool default_value)
    : cparameter_v1(std::move(component), std::move(name),
                    // A switch has no bounds.
                    {param_type::boolean, param_cell::of(default_value), param_cell::of(default_value), {}, {}})
{
}

bool cparameter_boolean_v1::get_value() { return get_param_value().value.as_boolean(); }

void cparameter_boolean_v1::set_value(bool v, bool edit)
{
    // The whole record is set again, so that the default stays.
    param_value record = get_param_value();
    record.value = param_cell::of(v);
    set_param_value(record, edit);
}

float cparameter_boolean_v1::get_value_normalized() { return get_value() ? 1.0f : 0.0f; }

void cparameter_boolean_v1::set_value_normalized(float n, bool edit) { set_value(n > 0.5f, edit); }

} // namespace ov1
