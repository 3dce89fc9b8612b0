// A parameter that holds a whole number within bounds.
#pragma once

#include "framework/parameters/cparameter_v1.h"

namespace ov1
{

/// The normalized value is the place between the bounds: 0 at min, 1 at max. Bounds differ.
class cparameter_integral_v1 : public cparameter_v1
{
public:
    /// Starts at default_value, brought within the bounds.
    cparameter_integral_v1(std::weak_ptr<icomponent_v1> component, std::string name, int min, int max,
                           int default_value);

    virtual int get_value();
    virtual void set_value(int v, bool edit);
    virtual float get_value_normalized();
    /// The place between the bounds is cut towards zero, not rounded. n outside 0..1 gives the nearer bound; a NaN is
    /// dropped.
    virtual void set_value_normalized(float n, bool edit);
};

} // namespace ov1
