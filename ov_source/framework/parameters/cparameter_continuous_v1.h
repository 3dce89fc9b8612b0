// A parameter that holds a float within bounds.
#pragma once

#include "framework/parameters/cparameter_v1.h"

namespace ov1
{

/// The normalized value is 0 at min, 1 at max and linear between them. The bounds must differ.
class cparameter_continuous_v1 : public cparameter_v1
{
public:
    /// Starts at default_value, clamped to the bounds.
    cparameter_continuous_v1(std::weak_ptr<icomponent_v1> component, std::string name, float min, float max,
                             float default_value);

    virtual float get_value();
    /// Clamped to the bounds; a NaN is ignored.
    virtual void set_value(float v, bool edit);
    /// 0 at min, 1 at max.
    virtual float get_value_normalized();
    /// n outside 0..1 sets the nearer bound; a NaN is ignored.
    virtual void set_value_normalized(float n, bool edit);
};

} // namespace ov1
