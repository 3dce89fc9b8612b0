#include "editor/panel/panel_values.h"

#include "platform/iutils.h"

#include <algorithm>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr CCoord line_height = 13;
constexpr CCoord label_room = 19; ///< above a pad, for the panel's name
constexpr CCoord gap = 1;
constexpr CCoord foot_width = 32;
constexpr CCoord foot_from_middle = 58; ///< where an arc's picture has swung away
constexpr CCoord callout_width = 36;
constexpr CCoord least_entry_width = 44;
constexpr CCoord entry_height = 17;
constexpr std::uint64_t message_ms = 4000;
constexpr const char* line_tooltip = "{en:Click to type a value}{de:Klicken, um einen Wert einzugeben}";

} // namespace

panel_values::panel_values(CFrame& frame, CViewContainer& panel, std::vector<panel_stop> all_stops,
                           language_id language, component_source component, value_sink on_typed)
    : panel(panel)
    , stops(std::move(all_stops))
    , language(language)
    , component(std::move(component))
    , on_typed(std::move(on_typed))
    , bubble(frame)
{
    for (const panel_stop& stop : stops)
    {
        auto* const line = new value_line(line_place(stop), [this, &stop] { type_over(stop); });
        line->setTooltipText(iutils::translate(language, line_tooltip).c_str());
        line->setVisible(false);
        panel.addView(line);
        lines.push_back(line);
    }
}

CRect panel_values::line_place(const panel_stop& stop) const
{
    const CRect control = stop.control->getViewSize();
    if (stop.is_pad())
        return {control.left, control.top - label_room - gap - line_height, control.right,
                control.top - label_room - gap};
    if (const auto* const slider = dynamic_cast<const COVCalloutSlider*>(stop.control))
    {
        const CPoint handle(slider->getHandle() ? slider->getHandle()->getWidth() : 0,
                            slider->getHandle() ? slider->getHandle()->getHeight() : 0);
        const CCoord middle =
            control.left + handle.x / 2 + slider->getValueNormalized() * (control.getWidth() - handle.x);
        const CCoord bottom = control.bottom - handle.y;
        return {middle - callout_width / 2, bottom - line_height, middle + callout_width / 2, bottom};
    }
    // Arcs touch the wheel's middle line, from which their feet are counted.
    const auto* const pad =
        std::ranges::find_if(stops, [&](const panel_stop& s) { return s.slot == stop.slot && s.is_pad(); })->control;
    const CRect wheel = pad->getViewSize();
    const bool is_left = control.getCenter().x < wheel.getCenter().x;
    const CCoord left = wheel.getCenter().x + (is_left ? -foot_from_middle - foot_width : foot_from_middle);
    return {left, wheel.bottom - line_height, left + foot_width, wheel.bottom};
}

CPoint panel_values::handle_of(const panel_stop& stop) const
{
    if (const auto* const pad = dynamic_cast<const COVColorWheelXYPad*>(stop.control))
        return pad->getHandleCentre();
    if (const auto* const arc = dynamic_cast<const COVArrowArcSlider*>(stop.control))
        return arc->getTip();
    return stop.control->getViewSize().getCenter();
}

CRect panel_values::panel_area(panel_slot slot) const
{
    CRect area;
    for (const panel_stop& stop : stops)
        for (const CRect& part : {stop.control->getViewSize(), line_place(stop)})
            if (stop.slot == slot)
                area.isEmpty() ? area = part : area.unite(part);
    return area;
}

void panel_values::point_at(const std::optional<CPoint>& in_frame)
{
    if (has_open_field)
        return;
    std::optional<panel_slot> found;
    if (in_frame)
    {
        CPoint where = *in_frame;
        panel.frameToLocal(where);
        for (const panel_stop& stop : stops)
            if (stop.is_pad() && panel_area(stop.slot).pointInside(where))
                found = found ? found : stop.slot;
    }
    if (std::exchange(pointed_at, found) != found)
        show_lines();
}

void panel_values::keep_shown(std::optional<panel_slot> slot)
{
    if (std::exchange(kept, slot) != slot)
        show_lines();
}

void panel_values::show_lines()
{
    const auto alive = component();
    for (std::size_t i = 0; i < stops.size(); ++i)
    {
        const bool is_shown = alive && (stops[i].slot == pointed_at || stops[i].slot == kept);
        if (lines[i]->isVisible() != is_shown)
            lines[i]->setVisible(is_shown);
        if (!is_shown)
            continue;
        if (dynamic_cast<COVCalloutSlider*>(stops[i].control)) // which writes its value itself
        {
            lines[i]->setViewSize(line_place(stops[i]), false);
            lines[i]->setMouseableArea(line_place(stops[i]));
        }
        else
            lines[i]->set_text(read_out(*alive, stops[i]));
    }
}

void panel_values::show_bubble(const panel_stop& stop)
{
    const auto alive = component();
    if (!alive || dynamic_cast<COVCalloutSlider*>(stop.control))
        return;
    is_message = false;
    CPoint handle = handle_of(stop);
    bubble.show(read_out(*alive, stop), panel.localToFrame(handle));
}

void panel_values::hide_bubble()
{
    is_message = false;
    bubble.hide();
}

void panel_values::idle(std::uint64_t now_ms)
{
    show_lines();
    if (!is_message)
        return;
    if (!message_since)
        message_since = now_ms;
    else if (now_ms - *message_since >= message_ms)
        hide_bubble();
}

void panel_values::type_over(const panel_stop& stop)
{
    const auto alive = component();
    if (!alive || has_open_field)
        return;
    has_open_field = true;
    CRect place = line_place(stop);
    place.extend(std::max(0.0, (least_entry_width - place.getWidth()) / 2), (entry_height - place.getHeight()) / 2);
    place.offset(std::max(0.0, -place.left), 0);
    open_value_entry(panel, place, entry_text(*alive, stop),
                     [this, &stop](const std::optional<std::string>& text) { take_typed(stop, text); });
}

void panel_values::take_typed(const panel_stop& stop, const std::optional<std::string>& text)
{
    has_open_field = false;
    const auto alive = component();
    if (!alive || !text || *text == entry_text(*alive, stop))
        return;
    std::vector<float> values;
    std::string why;
    if (read_entry(*alive, stop, *text, values, why))
        on_typed(stop, values);
    else
        show_message(stop, why);
    show_lines();
}

void panel_values::show_message(const panel_stop& stop, const std::string& literal)
{
    is_message = true;
    message_since.reset();
    CPoint where = line_place(stop).getCenter();
    bubble.show(iutils::translate(language, literal), panel.localToFrame(where));
}

} // namespace ov1
