// A parameter that holds a whole number within bounds.
#pragma once

#include "framework/parameters/cparameter_v1.h"

namespace ov1
{

/// The normalized value is 0 at min, 1 at max and linear between them. The bounds must differ.
class cparameter_integral_v1 : public cparameter_v1
{
public:
    /// Starts at default_value, clamped to the bounds.
    cparameter_integral_v1(std::weak_ptr<icomponent_v1> component, std::string name, int min, int max,
                           int default_value);

    virtual int get_value();
    /// Clamped to the bounds.
    virtual void set_value(int v, bool edit);
    /// 0 at min, 1 at max.
    virtual float get_value_normalized();
    /// The value is truncated towards zero, not rounded. n outside 0..1 sets the nearer bound; a NaN is ignored.
    virtual void set_value_normalized(float n, bool edit);
};

} // namespace ov1
