// A parameter that holds a colour.
#pragma once

#include "framework/parameters/cparameter_v1.h"

namespace ov1
{

/// A colour in display-referred code values.
class cparameter_color_v1 : public cparameter_v1
{
public:
    cparameter_color_v1(std::weak_ptr<icomponent_v1> component, std::string name, const param_argb& default_value);

    /// The colour that was set last.
    virtual param_argb get_value();
    /// Ignored unless every channel is within 0..1.
    virtual void set_value(param_argb v, bool edit);
};

} // namespace ov1
