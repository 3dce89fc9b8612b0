// Parameters of earlier versions of the effect, and the present parameters that replace them.
// Old documents and presets still carry them. They are recognised by their ids and are not parameters of the component.
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

/// Maps the values of earlier parameters as they arrive: "Sky" and "Film Contrast", whose sign becomes a direction and
/// whose magnitude a strength; "Greenery Kind", which becomes an angle; "Boost Skin Tones" and "Skin Tone Hue", the two
/// coordinates of a point that becomes an angle and a strength. The two skin values act together, so the first one is
/// kept until the other arrives. Not thread-safe: the caller locks.
class legacy_parameters
{
public:
    /// Forgets a skin value that still waits for the other.
    void forget() { boost = hue = not_received; }

    /// The changes that a stored value stands for now, in the order in which they are to be set. None for an id that no
    /// earlier parameter had, for a value that is not finite, and for the first of the two skin values.
    /// greenery_angle is the present value of "Greenery Angle", which an unknown kind of greenery leaves unchanged.
    std::vector<parameter_change> map(uid id, const param_value& value, float greenery_angle);

private:
    static constexpr double not_received = std::numeric_limits<double>::infinity();

    /// Empty until both skin values are there. The strength is 100 at most.
    std::vector<parameter_change> map_skin() const;

    double boost = not_received;
    double hue = not_received;
};

} // namespace ov1
