// The effect in use: initialized, with a plain host.
#pragma once

#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/icomponent_v1.h"
#include "framework/parameters/iparameter_v1.h"

namespace ov1
{

struct effect_stage
{
    effect_stage() { effect->initialize(std::make_shared<chost_v1>(effect)); }
    ~effect_stage() { effect->terminate(); }
    effect_stage& operator=(effect_stage&&) = delete;

    float value(const std::string& name) const
    {
        return effect->get_parameter(name)->get_param_value().value.as_continuous();
    }

    std::shared_ptr<icomponent_v1> effect = create_ccomponent();
};

} // namespace ov1
