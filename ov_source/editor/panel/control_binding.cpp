#include "editor/panel/control_binding.h"

#include "framework/parameters/cparameter_continuous_v1.h"

#include <algorithm>

namespace ov1
{

using namespace VSTGUI;

namespace
{

/// Does nothing for controls other than a smoothness slider.
void spread_arc_of(const CControl& slider, float normalized)
{
    if (auto* const arc = find_spread_arc(slider))
        spread_arc(*arc, normalized);
}

void write_pad(const panel_stop& stop)
{
    // Both are read before either is set: setting the angle may move the handle.
    const float angle = stop.pad->getAngle(), radius = stop.pad->getRadius();
    if (const auto parameter = stop.parameters[0].lock())
        parameter->set_value(angle, false);
    if (const auto parameter = stop.parameters[1].lock())
        parameter->set_value(radius, false);
}

/// Redraws only for another value: a restored state calls this for every parameter.
void show_in_slider(CControl& control, float normalized)
{
    if (control.getValueNormalized() != normalized)
    {
        control.setValueNormalized(normalized);
        control.invalid();
    }
    spread_arc_of(control, normalized);
}

/// False where the stop has no control with this tag that may be moved.
bool show_in_stop(const panel_stop& stop, std::int32_t tag, cparameter_continuous_v1& parameter)
{
    // The user holds the control: it must not move under the mouse.
    if (stop.control->isEditing())
        return false;
    if (stop.control->getTag() == tag)
        stop.pad ? stop.pad->setAngle(parameter.get_value())
                 : show_in_slider(*stop.control, parameter.get_value_normalized());
    else if (stop.pad && stop.pad->getRadiusTag() == tag)
        stop.pad->setRadius(parameter.get_value());
    else
        return false;
    return true;
}

} // namespace

bool write_parameters(std::span<const panel_stop> stops, CControl& control)
{
    const panel_stop* const stop = find_stop(stops, &control);
    if (!stop)
        return false;
    if (stop->pad)
    {
        write_pad(*stop);
        return true;
    }
    const auto parameter = stop->parameters[0].lock();
    if (!parameter)
        return false;
    // edit is false: the component keeps chroma and lightness of a wheel within each other's limits then.
    parameter->set_value_normalized(control.getValueNormalized(), false);
    spread_arc_of(control, control.getValueNormalized());
    return true;
}

bool show_parameter(std::span<const panel_stop> stops, iparameter_v1& parameter)
{
    // The panel has controls for continuous parameters only.
    auto* const continuous = dynamic_cast<cparameter_continuous_v1*>(&parameter);
    const auto tag = static_cast<std::int32_t>(parameter.get_uid());
    return continuous &&
           std::ranges::any_of(stops, [&](const panel_stop& stop) { return show_in_stop(stop, tag, *continuous); });
}

bool is_bound_pad(std::span<const panel_stop> stops, const CControl& control)
{
    const panel_stop* const stop = find_stop(stops, &control);
    return stop && stop->pad &&
           std::ranges::any_of(stop->parameters, [](const auto& parameter) { return !parameter.expired(); });
}

} // namespace ov1
