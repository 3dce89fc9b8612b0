#include "framework/parameters/cparameter_integral_v1.h"

#include <cmath>
#include <limits>
#include <utility>

namespace ov1
{

namespace
{

/// The distance may exceed the range of an int.
float distance(std::int32_t from, std::int32_t to) { return static_cast<float>(std::int64_t{to} - from); }

/// Truncates towards zero; values outside the range of an int give its nearer end.
std::int32_t truncated(float x)
{
    using limits = std::numeric_limits<std::int32_t>;
    // 2^31, which a float represents exactly; the largest int it does not.
    constexpr float beyond = 2147483648.0f;
    if (x >= beyond)
        return limits::max();
    return x < -beyond ? limits::min() : static_cast<std::int32_t>(x);
}

} // namespace

cparameter_integral_v1::cparameter_integral_v1(std::weak_ptr<icomponent_v1> component, std::string name, int min,
                                               int max, int default_value)
    : cparameter_v1(std::move(component), std::move(name),
                    {param_type::integral, param_cell::of(default_value), param_cell::of(default_value),
                     param_bound::of(min), param_bound::of(max)})
{
}

int cparameter_integral_v1::get_value() { return get_param_value().value.as_integral(); }

void cparameter_integral_v1::set_value(int v, bool edit)
{
    param_value record = get_param_value();
    record.value = param_cell::of(v);
    set_param_value(record, edit);
}

float cparameter_integral_v1::get_value_normalized()
{
    // One copy of the record, so that value and bounds are of the same moment.
    const param_value record = get_param_value();
    const std::int32_t lo = record.min.as_integral();
    return distance(lo, record.value.as_integral()) / distance(lo, record.max.as_integral());
}

void cparameter_integral_v1::set_value_normalized(float n, bool edit)
{
    // A NaN has no nearest whole number.
    if (std::isnan(n))
        return;
    const param_value record = get_param_value();
    const std::int32_t lo = record.min.as_integral();
    set_value(truncated(static_cast<float>(lo) + n * distance(lo, record.max.as_integral())), edit);
}

} // namespace ov1
