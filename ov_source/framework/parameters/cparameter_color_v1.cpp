#include "framework/parameters/cparameter_color_v1.h"

#include <utility>

namespace ov1
{

cparameter_color_v1::cparameter_color_v1(std::weak_ptr<icomponent_v1> component, std::string name,
                                         const param_argb& default_value)
    // A colour has no bounds: every channel is within 0..1.
    : cparameter_v1(std::move(component), std::move(name),
                    {param_type::color, param_cell::of(default_value), param_cell::of(default_value), {}, {}})
{
}

param_argb cparameter_color_v1::get_value() { return get_param_value().value.as_color(); }

void cparameter_color_v1::set_value(param_argb v, bool edit)
{
    // The whole record is set again, so that the default stays.
    param_value record = get_param_value();
    record.value = param_cell::of(v);
    set_param_value(record, edit);
}

} // namespace ov1
