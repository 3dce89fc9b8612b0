#include "editor/panel/panel_stops.h"

#include "editor/controls/widgets/value_text.h"
#include "framework/parameters/cparameter_continuous_v1.h"

#include <algorithm>

namespace ov1
{

namespace
{

/// By rows, each from left to right.
constexpr std::array focus_order = {panel_slot::master,     panel_slot::shadows,      panel_slot::mids,
                                    panel_slot::highlights, panel_slot::greenery,     panel_slot::sky,
                                    panel_slot::skin,       panel_slot::film_contrast};
constexpr float step_percent = 1; // of the wheel's radius, or of half a range
constexpr float fine_factor = 0.1f;

using continuous = std::shared_ptr<cparameter_continuous_v1>;

/// A tag is the parameter's uid, as the toolkit's signed number.
continuous find_continuous(icomponent_v1& component, std::int32_t tag)
{
    return std::dynamic_pointer_cast<cparameter_continuous_v1>(component.get_parameter(static_cast<uid>(tag)));
}

panel_stop stop_of_pad(icomponent_v1& component, panel_slot slot, COVColorWheelXYPad& pad)
{
    panel_stop stop{.slot = slot, .control = &pad, .pad = &pad};
    stop.parameters = {find_continuous(component, pad.getAngleTag()), find_continuous(component, pad.getRadiusTag())};
    return stop;
}

panel_stop stop_of_slider(icomponent_v1& component, panel_slot slot, VSTGUI::CControl& control)
{
    panel_stop stop{.slot = slot, .control = &control};
    stop.arc = dynamic_cast<COVArrowArcSlider*>(&control);
    stop.slider = dynamic_cast<COVCalloutSlider*>(&control);
    stop.parameters[0] = find_continuous(component, control.getTag());
    return stop;
}

/// Empty unless all of them exist.
std::vector<continuous> parameters_of(const panel_stop& stop)
{
    std::vector<continuous> found;
    for (std::size_t i = 0; i < (stop.pad ? 2U : 1U); ++i)
        if (auto parameter = stop.parameters[i].lock())
            found.push_back(std::move(parameter));
        else
            return {};
    return found;
}

float min_of(cparameter_continuous_v1& parameter) { return parameter.get_param_value().min.as_continuous(); }
float max_of(cparameter_continuous_v1& parameter) { return parameter.get_param_value().max.as_continuous(); }
float default_of(cparameter_continuous_v1& parameter)
{
    return parameter.get_param_value().default_value.as_continuous();
}

/// Both languages in one literal.
failure not_accepted(const std::string& english, const std::string& german)
{
    return {.kind = failure_kind::usage,
            .reason = "{en:Not accepted: " + english + "}{de:Nicht übernommen: " + german + "}"};
}

} // namespace

std::vector<panel_stop> order_panel_stops(icomponent_v1& component, const panel_controls& controls)
{
    std::vector<panel_stop> stops;
    for (const panel_slot slot : focus_order)
    {
        const auto add_slider = [&](const char* parameter)
        {
            const auto tag = static_cast<std::int32_t>(make_uid(parameter));
            // Found by tag: the controls are in the order of creation, not of focus.
            const auto found = std::ranges::find(controls.others, tag, &VSTGUI::CControl::getTag);
            if (found != controls.others.end())
                stops.push_back(stop_of_slider(component, slot, **found));
        };
        if (auto* const pad = controls.pads[static_cast<std::size_t>(slot)])
            stops.push_back(stop_of_pad(component, slot, *pad));
        // get_panels is in the order of creation, which is another.
        const panel& row = *std::ranges::find(get_panels(), slot, &panel::slot);
        for (const panel_arc& arc : row.arcs)
            add_slider(arc.parameter);
        for (const panel_slider& slider : row.sliders)
            add_slider(slider.parameter);
    }
    return stops;
}

const panel_stop* find_stop(std::span<const panel_stop> stops, const VSTGUI::CView* control)
{
    const auto found = std::ranges::find(stops, control, &panel_stop::control);
    return found == stops.end() ? nullptr : &*found;
}

const COVColorWheelXYPad& pad_of(std::span<const panel_stop> stops, panel_slot slot)
{
    return *std::ranges::find_if(stops, [&](const panel_stop& s) { return s.slot == slot && s.pad; })->pad;
}

std::string value_text_of(const panel_stop& stop)
{
    const auto parameters = parameters_of(stop);
    if (parameters.empty())
        return {};
    return stop.pad ? pad_value_text(parameters[0]->get_value(), parameters[1]->get_value())
                    : plain_value_text(parameters[0]->get_value());
}

std::string entry_text_of(const panel_stop& stop)
{
    const auto parameters = parameters_of(stop);
    if (parameters.empty())
        return {};
    return stop.pad ? pad_entry_text(parameters[0]->get_value(), parameters[1]->get_value())
                    : plain_value_text(parameters[0]->get_value());
}

void nudge(const panel_stop& stop, const VSTGUI::CPoint& direction, bool finely)
{
    const auto parameters = parameters_of(stop);
    if (parameters.empty())
        return;
    const float step = finely ? step_percent * fine_factor : step_percent;
    if (stop.pad)
    {
        // A step across the wheel changes angle and radius together.
        const pad_polar moved = nudged({parameters[0]->get_value(), parameters[1]->get_value()},
                                       step * static_cast<float>(direction.x), step * static_cast<float>(direction.y));
        return set_values(stop, {moved.angle, moved.radius});
    }
    cparameter_continuous_v1& parameter = *parameters[0];
    const float half_range = (max_of(parameter) - min_of(parameter)) / 2;
    const float more = step / 100 * half_range * static_cast<float>(direction.x - direction.y); // y grows downwards
    parameter.set_value(parameter.get_value() + more, false);
}

bool is_at_default(const panel_stop& stop)
{
    return std::ranges::all_of(parameters_of(stop), [](const auto& p) { return p->get_is_default(); });
}

void reset(const panel_stop& stop)
{
    std::vector<float> values;
    for (const auto& parameter : parameters_of(stop))
        values.push_back(default_of(*parameter));
    set_values(stop, values);
}

result<std::vector<float>> read_entry(const panel_stop& stop, const std::string& typed)
{
    const auto parameters = parameters_of(stop);
    std::vector<float> values(parameters.size());
    if (parameters.empty() || !read_typed_values(typed, values))
        // The reason shows the form that is expected.
        return stop.pad ? not_accepted("two numbers, such as 212.5, 30", "zwei Zahlen wie 212.5, 30")
                        : not_accepted("a number, such as 12.5", "eine Zahl wie 12.5");
    for (std::size_t i = 0; i < values.size(); ++i)
    {
        const float low = min_of(*parameters[i]), high = max_of(*parameters[i]);
        if (values[i] >= low && values[i] <= high) // a drag stops at the bounds, a typed value is refused
            continue;
        const std::string from = plain_value_text(low), to = plain_value_text(high), bad = plain_value_text(values[i]);
        return not_accepted(bad + " is not within " + from + " to " + to,
                            bad + " liegt nicht zwischen " + from + " und " + to);
    }
    return values;
}

void set_values(const panel_stop& stop, const std::vector<float>& values)
{
    const auto parameters = parameters_of(stop);
    for (std::size_t i = 0; i < parameters.size() && i < values.size(); ++i)
        // With edit false, as a drag does it: the component then keeps a wheel's chroma and lightness within each
        // other's limits.
        parameters[i]->set_value(values[i], false);
}

} // namespace ov1
