#include "editor/panel/control_binding.h"

#include "framework/parameters/cparameter_continuous_v1.h"

#include <algorithm>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

std::shared_ptr<cparameter_continuous_v1> find_continuous(icomponent_v1& component, std::int32_t tag)
{
    return std::dynamic_pointer_cast<cparameter_continuous_v1>(component.get_parameter(static_cast<uid>(tag)));
}

void spread_arc_of(const CControl& slider, float normalized)
{
    if (auto* const arc = find_spread_arc(slider))
        spread_arc(*arc, normalized);
}

} // namespace

control_binding::control_binding(std::weak_ptr<icomponent_v1> component, const panel_controls& controls)
    : component(std::move(component))
    , controls(controls)
{
}

COVColorWheelXYPad* control_binding::as_pad(const CControl& control) const
{
    const auto found = std::ranges::find(controls.pads, &control);
    return found == controls.pads.end() ? nullptr : *found;
}

bool control_binding::write(CControl& control) const
{
    const auto alive = component.lock();
    if (!alive)
        return false;
    if (const auto* pad = as_pad(control)) // first: a pad's own tag is its angle's
    {
        write_pad(*alive, *pad);
        return true;
    }
    const auto parameter = find_continuous(*alive, control.getTag());
    if (!parameter)
        return false;
    parameter->set_value_normalized(control.getValueNormalized(), false);
    spread_arc_of(control, control.getValueNormalized());
    return true;
}

void control_binding::write_pad(icomponent_v1& written, const COVColorWheelXYPad& pad) const
{
    // Both are read before either is set: a set moves the handle of any other pad with the same parameters.
    const float angle = pad.getAngle(), radius = pad.getRadius();
    if (const auto parameter = find_continuous(written, pad.getAngleTag()))
        parameter->set_value(angle, false);
    if (const auto parameter = find_continuous(written, pad.getRadiusTag()))
        parameter->set_value(radius, false);
}

bool control_binding::show(iparameter_v1& parameter) const
{
    auto* const continuous = dynamic_cast<cparameter_continuous_v1*>(&parameter);
    return continuous && (show_in_list(*continuous) || show_in_pads(*continuous));
}

bool control_binding::show_in_list(cparameter_continuous_v1& parameter) const
{
    const auto tag = static_cast<std::int32_t>(parameter.get_uid());
    const auto found =
        std::ranges::find_if(controls.others, [&](const CControl* c) { return c->getTag() == tag && !c->isEditing(); });
    if (found == controls.others.end())
        return false;
    CControl& control = **found;
    const float value = parameter.get_value_normalized();
    if (control.getValueNormalized() != value)
    {
        control.setValueNormalized(value);
        control.invalid();
    }
    spread_arc_of(control, value);
    return true;
}

bool control_binding::show_in_pads(cparameter_continuous_v1& parameter) const
{
    const auto tag = static_cast<std::int32_t>(parameter.get_uid());
    for (COVColorWheelXYPad* pad : controls.pads)
    {
        if (pad->isEditing())
            continue;
        if (pad->getAngleTag() == tag)
            pad->setAngle(parameter.get_value());
        else if (pad->getRadiusTag() == tag)
            pad->setRadius(parameter.get_value());
        else
            continue;
        return true;
    }
    return false;
}

bool control_binding::is_bound_pad(const CControl& control) const
{
    const auto alive = component.lock();
    const auto* pad = as_pad(control);
    if (!alive || !pad)
        return false;
    return alive->get_parameter(static_cast<uid>(pad->getAngleTag())) ||
           alive->get_parameter(static_cast<uid>(pad->getRadiusTag()));
}

} // namespace ov1
