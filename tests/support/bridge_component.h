// A component with one parameter of every kind that the bridge treats differently.
#pragma once

#include "framework/ccomponent_v1.h"
#include "framework/editor_factory.h"
#include "framework/iview_v1.h"
#include "framework/parameters/cparameter_boolean_v1.h"
#include "framework/parameters/cparameter_color_v1.h"
#include "framework/parameters/cparameter_continuous_v1.h"
#include "framework/parameters/cparameter_integral_v1.h"

#include <string>

namespace ov1
{

/// Not shown in the host's inspector.
struct hidden_parameter : cparameter_continuous_v1
{
    using cparameter_continuous_v1::cparameter_continuous_v1;
    std::uint32_t get_flags() const override { return parameter_is_hidden; }
};

/// Exchanges red and blue and keeps alpha. "Amount" has replaced the older parameter "Old Amount".
struct bridge_component : ccomponent_v1
{
    enum place
    {
        amount,
        menu,
        steps,
        on,
        tint,
        secret,
    };

    void init_component() override
    {
        register_parameter(std::make_shared<cparameter_continuous_v1>(get_self(), "Amount", -50.0f, 100.0f, 12.5f));
        register_parameter(std::make_shared<cparameter_integral_v1>(get_self(), "Menu", 3, 17, 5));
        register_parameter(std::make_shared<cparameter_integral_v1>(get_self(), "Steps", 3, 18, 5));
        register_parameter(std::make_shared<cparameter_boolean_v1>(get_self(), "On & off", true));
        register_parameter(
            std::make_shared<cparameter_color_v1>(get_self(), "Tint", param_argb{1, 0.25f, 0.5f, 0.75f}));
        register_parameter(std::make_shared<hidden_parameter>(get_self(), "Secret", 0.0f, 1.0f, 0.5f));
    }

    std::shared_ptr<iview_v1> create_view() override
    {
        set_view(create_editor(get_self()));
        return get_view();
    }
    void handle_unknown_parameter(uid id, const param_value& value, bool edit) override
    {
        ccomponent_v1::handle_unknown_parameter(id, value, edit);
        if (id != make_uid("Old Amount"))
            return;
        param_value v = get_parameter(amount)->get_param_value();
        v.value = value.value;
        get_parameter(amount)->set_param_value(v, edit);
    }
    void render_pixel(std::size_t, std::size_t, const argb_float& in, argb_float& out) override
    {
        out = {in.a, in.b, in.g, in.r};
    }
};

} // namespace ov1
