// Parameters of former versions, and what has become of them.
#pragma once

#include "effect/parameter_table.h"
#include "shared/param_value.h"
#include "shared/uid.h"

#include <array>
#include <limits>
#include <optional>
#include <vector>

namespace ov1
{

/// A value to set, in the parameter's own unit.
struct parameter_change
{
    parameter_index parameter;
    float value;
};

/// Maps the values of former parameters as they arrive. The two skin values act together, so the first is kept until
/// its partner comes. Not for several threads at once.
class legacy_parameters
{
public:
    /// Forgets a skin value whose partner has not come.
    void forget() { boost = hue = not_received; }

    /// What a stored value stands for now, in the order in which it is to be set; nothing for an id that no former
    /// parameter had, for a value that is not finite, and for the first of the two skin values.
    /// greenery_angle is the present value of "Greenery Angle", which an unknown kind of greenery leaves as it is.
    std::vector<parameter_change> map(uid id, const param_value& value, float greenery_angle);

private:
    static constexpr double not_received = std::numeric_limits<double>::infinity();

    std::vector<parameter_change> map_skin() const;

    double boost = not_received;
    double hue = not_received;
};

} // namespace ov1
