#include "editor/panel/panel_stops.h"

#include "editor/controls/widgets/value_text.h"
#include "framework/parameters/cparameter_continuous_v1.h"

#include <algorithm>
#include <array>

namespace ov1
{

namespace
{

constexpr std::array panels_by_eye = {panel_slot::master,     panel_slot::shadows,      panel_slot::mids,
                                      panel_slot::highlights, panel_slot::greenery,     panel_slot::sky,
                                      panel_slot::skin,       panel_slot::film_contrast};
constexpr float step_percent = 1;
constexpr float fine_pace = 0.1f;

uid uid_of_tag(std::int32_t tag) { return static_cast<uid>(tag); }

void add_stop(std::vector<panel_stop>& stops, const panel_controls& controls, panel_slot slot, const char* parameter)
{
    const uid id = make_uid(parameter);
    const auto found =
        std::ranges::find_if(controls.others, [&](const auto* c) { return uid_of_tag(c->getTag()) == id; });
    if (found != controls.others.end())
        stops.push_back({*found, slot, {id}});
}

using continuous = std::shared_ptr<cparameter_continuous_v1>;

/// Empty unless all of them are there.
std::vector<continuous> parameters_of(icomponent_v1& component, const panel_stop& stop)
{
    std::vector<continuous> found;
    for (const uid id : stop.parameters)
        if (auto parameter = std::dynamic_pointer_cast<cparameter_continuous_v1>(component.get_parameter(id)))
            found.push_back(std::move(parameter));
    if (found.size() != stop.parameters.size())
        found.clear();
    return found;
}

float least(cparameter_continuous_v1& parameter) { return parameter.get_param_value().min.as_continuous(); }
float most(cparameter_continuous_v1& parameter) { return parameter.get_param_value().max.as_continuous(); }
float usual(cparameter_continuous_v1& parameter) { return parameter.get_param_value().default_value.as_continuous(); }

} // namespace

std::vector<panel_stop> order_panel_stops(const panel_controls& controls)
{
    std::vector<panel_stop> stops;
    for (const panel_slot slot : panels_by_eye)
    {
        const auto of_slot = std::ranges::find(get_panels(), slot, &panel::slot);
        if (auto* const pad = controls.pads[static_cast<std::size_t>(slot)])
            stops.push_back({pad, slot, {uid_of_tag(pad->getAngleTag()), uid_of_tag(pad->getRadiusTag())}});
        for (const panel_arc& arc : of_slot->arcs)
            add_stop(stops, controls, slot, arc.parameter);
        for (const panel_slider& slider : of_slot->sliders)
            add_stop(stops, controls, slot, slider.parameter);
    }
    return stops;
}

std::string read_out(icomponent_v1& component, const panel_stop& stop)
{
    const auto parameters = parameters_of(component, stop);
    if (parameters.empty())
        return {};
    return stop.is_pad() ? pad_value_text(parameters[0]->get_value(), parameters[1]->get_value())
                         : plain_value_text(parameters[0]->get_value());
}

std::string entry_text(icomponent_v1& component, const panel_stop& stop)
{
    const auto parameters = parameters_of(component, stop);
    if (parameters.empty())
        return {};
    return stop.is_pad() ? pad_entry_text(parameters[0]->get_value(), parameters[1]->get_value())
                         : plain_value_text(parameters[0]->get_value());
}

void nudge(icomponent_v1& component, const panel_stop& stop, const VSTGUI::CPoint& direction, bool finely)
{
    const auto parameters = parameters_of(component, stop);
    if (parameters.empty())
        return;
    const float step = finely ? step_percent * fine_pace : step_percent;
    if (stop.is_pad())
    {
        const pad_polar moved = nudged({parameters[0]->get_value(), parameters[1]->get_value()},
                                       step * static_cast<float>(direction.x), step * static_cast<float>(direction.y));
        return set_values(component, stop, {moved.angle, moved.radius});
    }
    cparameter_continuous_v1& parameter = *parameters[0];
    const float reach = (most(parameter) - least(parameter)) / 2;
    const float more = step / 100 * reach * static_cast<float>(direction.x - direction.y);
    parameter.set_value(parameter.get_value() + more, false);
}

bool is_at_default(icomponent_v1& component, const panel_stop& stop)
{
    return std::ranges::all_of(parameters_of(component, stop), [](const auto& p) { return p->get_is_default(); });
}

void reset(icomponent_v1& component, const panel_stop& stop)
{
    std::vector<float> values;
    for (const auto& parameter : parameters_of(component, stop))
        values.push_back(usual(*parameter));
    set_values(component, stop, values);
}

bool read_entry(icomponent_v1& component, const panel_stop& stop, const std::string& typed, std::vector<float>& values,
                std::string& why)
{
    const auto parameters = parameters_of(component, stop);
    std::vector<float> read(parameters.size());
    if (parameters.empty() || !read_typed_values(typed, read))
    {
        why = stop.is_pad() ? "{en:Not taken: two numbers, such as 212.5, 30}{de:Nicht übernommen: zwei Zahlen wie "
                              "212.5, 30}"
                            : "{en:Not taken: a number, such as 12.5}{de:Nicht übernommen: eine Zahl wie 12.5}";
        return false;
    }
    for (std::size_t i = 0; i < read.size(); ++i)
    {
        const float low = least(*parameters[i]), high = most(*parameters[i]);
        if (read[i] >= low && read[i] <= high)
            continue;
        const std::string from = plain_value_text(low), to = plain_value_text(high), bad = plain_value_text(read[i]);
        why = "{en:Not taken: " + bad + " is not within " + from + " to " + to + "}{de:Nicht übernommen: " + bad +
              " liegt nicht zwischen " + from + " und " + to + "}";
        return false;
    }
    values = std::move(read);
    return true;
}

void set_values(icomponent_v1& component, const panel_stop& stop, const std::vector<float>& values)
{
    const auto parameters = parameters_of(component, stop);
    for (std::size_t i = 0; i < parameters.size() && i < values.size(); ++i)
        parameters[i]->set_value(values[i], false);
}

} // namespace ov1
