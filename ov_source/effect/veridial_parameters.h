// The effect's own parameter classes.
// They differ from the general boolean only in their flags. All other parameters are plain continuous ones.
#pragma once

#include "framework/parameters/cparameter_boolean_v1.h"

namespace ov1
{

/// Switches the whole effect off. Hosts keep it out of their inspector.
class veridial_bypass_parameter : public cparameter_boolean_v1
{
public:
    using cparameter_boolean_v1::cparameter_boolean_v1;
    std::uint32_t get_flags() const override { return parameter_is_hidden | parameter_is_bypass; }
};

/// A switch that hosts keep out of their inspector. No present parameter is of this class.
class veridial_hidden_boolean_param : public cparameter_boolean_v1
{
public:
    using cparameter_boolean_v1::cparameter_boolean_v1;
    std::uint32_t get_flags() const override { return parameter_is_hidden; }
};

} // namespace ov1
