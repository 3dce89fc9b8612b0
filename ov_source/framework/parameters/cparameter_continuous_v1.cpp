#include "framework/parameters/cparameter_continuous_v1.h"

#include <utility>

namespace ov1
{

cparameter_continuous_v1::cparameter_continuous_v1(std::weak_ptr<icomponent_v1> component, std::string name, float min,
                                                   float max, float default_value)
    : cparameter_v1(std::move(component), std::move(name),
                    {param_type::continuous, param_cell::of(default_value), param_cell::of(default_value),
                     param_bound::of(min), param_bound::of(max)})
{
}

float cparameter_continuous_v1::get_value() { return get_param_value().value.as_continuous(); }

void cparameter_continuous_v1::set_value(float v, bool edit)
{
    // The whole record is set again, so that default and bounds stay.
    param_value record = get_param_value();
    record.value = param_cell::of(v);
    set_param_value(record, edit);
}

float cparameter_continuous_v1::get_value_normalized()
{
    // One copy of the record, so that value and bounds are of the same moment.
    const param_value record = get_param_value();
    const float lo = record.min.as_continuous();
    return (record.value.as_continuous() - lo) / (record.max.as_continuous() - lo);
}

void cparameter_continuous_v1::set_value_normalized(float n, bool edit)
{
    const param_value record = get_param_value();
    const float lo = record.min.as_continuous();
    // A NaN or a value outside the bounds is treated by set_param_value.
    set_value(lo + n * (record.max.as_continuous() - lo), edit);
}

} // namespace ov1
