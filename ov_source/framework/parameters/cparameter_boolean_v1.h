// A parameter that is on or off.
#pragma once

#include "framework/parameters/cparameter_v1.h"

namespace ov1
{

/// A switch. Threads and failures as in iparameter_v1.
class cparameter_boolean_v1 : public cparameter_v1
{
public:
    cparameter_boolean_v1(std::weak_ptr<icomponent_v1> component, std::string name, bool default_value);

    /// The value, and a set that is ignored while the parameter is disabled.
    virtual bool get_value();
    virtual void set_value(bool v, bool edit);
    /// 1 when on, 0 when off.
    virtual float get_value_normalized();
    /// On exactly when n is above 0.5.
    virtual void set_value_normalized(float n, bool edit);
};

} // namespace ov1
