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
constexpr CCoord label_room = 19; // above a pad, for the panel's label
constexpr CCoord gap = 1;
constexpr CCoord arc_line_width = 32;
constexpr CCoord arc_line_from_middle = 58; // beside the lower end of the arc, which bends inwards there
constexpr CCoord callout_width = 36;
constexpr CCoord least_entry_width = 44;
constexpr CCoord entry_height = 17;
constexpr std::uint64_t message_ms = 4000;
constexpr const char* line_tooltip = "{en:Click to type a value}{de:Klicken, um einen Wert einzugeben}";

CRect line_above_pad(const CRect& pad)
{
    const CCoord bottom = pad.top - label_room - gap; // the panel's label lies between
    return {pad.left, bottom - line_height, pad.right, bottom};
}

/// Over the value that the slider writes above its handle.
CRect line_over_callout(const COVCalloutSlider& slider)
{
    const CRect track = slider.getViewSize();
    const CPoint handle = slider.getHandle() ? slider.getHandle()->getSize() : CPoint();
    // The handle's middle, as the toolkit places it.
    const CCoord middle = track.left + handle.x / 2 + slider.getValueNormalized() * (track.getWidth() - handle.x);
    const CCoord bottom = track.bottom - handle.y;
    return {middle - callout_width / 2, bottom - line_height, middle + callout_width / 2, bottom};
}

/// On the outer side of the wheel, level with its lower edge.
CRect line_below_arc(const CRect& arc, const CRect& wheel)
{
    const CCoord middle = wheel.getCenter().x;
    const bool is_left = arc.getCenter().x < middle;
    const CCoord left = middle + (is_left ? -arc_line_from_middle - arc_line_width : arc_line_from_middle);
    return {left, wheel.bottom - line_height, left + arc_line_width, wheel.bottom};
}

} // namespace

panel_values::panel_values(CFrame& frame, CViewContainer& panel, std::span<const panel_stop> stops,
                           language_id language, value_sink on_typed)
    : panel(panel)
    , stops(stops)
    , language(language)
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
    if (stop.pad)
        return line_above_pad(stop.pad->getViewSize());
    if (stop.slider)
        return line_over_callout(*stop.slider);
    return line_below_arc(stop.control->getViewSize(), pad_of(stops, stop.slot).getViewSize());
}

CRect panel_values::panel_area(panel_slot slot) const
{
    CRect area = pad_of(stops, slot).getViewSize();
    for (const panel_stop& stop : stops)
        if (stop.slot == slot)
            // Lines belong to the area, so that the mouse can reach them without leaving it.
            area.unite(stop.control->getViewSize()).unite(line_place(stop));
    return area;
}

void panel_values::point_at(const std::optional<CPoint>& in_frame)
{
    if (has_open_field)
        return;
    // Areas of panels may overlap; the first in the order of focus wins.
    std::optional<panel_slot> found;
    if (in_frame)
    {
        CPoint where = *in_frame;
        panel.frameToLocal(where);
        for (const panel_stop& stop : stops)
            // Each panel has exactly one pad.
            if (stop.pad && panel_area(stop.slot).pointInside(where))
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
    for (std::size_t i = 0; i < stops.size(); ++i)
    {
        // Runs at every idle: only differences reach the views, so that nothing is redrawn in vain.
        const bool is_shown = stops[i].slot == pointed_at || stops[i].slot == kept;
        if (lines[i]->isVisible() != is_shown)
            lines[i]->setVisible(is_shown);
        if (!is_shown)
            continue;
        if (stops[i].slider) // its value moves with the handle
        {
            // Without a redraw: a line over a slider has no text of its own.
            lines[i]->setViewSize(line_place(stops[i]), false);
            lines[i]->setMouseableArea(line_place(stops[i]));
        }
        else
            lines[i]->set_text(value_text_of(stops[i]));
    }
}

void panel_values::show_bubble(const panel_stop& stop)
{
    const std::string text = value_text_of(stop);
    // A slider writes its value itself.
    if (stop.slider || text.empty())
        return;
    is_message = false;
    CPoint handle = stop.pad   ? stop.pad->getHandleCentre()
                    : stop.arc ? stop.arc->getTip()
                               : stop.control->getViewSize().getCenter();
    bubble.show(text, panel.localToFrame(handle));
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
    if (!message_since) // show_message has no clock
        message_since = now_ms;
    else if (now_ms - *message_since >= message_ms)
        hide_bubble();
}

void panel_values::type_over(const panel_stop& stop)
{
    const std::string present = entry_text_of(stop);
    if (present.empty() || has_open_field)
        return;
    has_open_field = true;
    CRect place = line_place(stop);
    place.extend(std::max(0.0, (least_entry_width - place.getWidth()) / 2), (entry_height - place.getHeight()) / 2);
    place.offset(std::max(0.0, -place.left), 0); // the field is wider than the line, and stays in the panel
    open_value_entry(panel, place, present,
                     [this, &stop](const std::optional<std::string>& text) { take_typed(stop, text); });
}

void panel_values::take_typed(const panel_stop& stop, const std::optional<std::string>& text)
{
    has_open_field = false;
    // An unchanged text would set a value that was rounded for display.
    const std::string present = entry_text_of(stop);
    if (present.empty() || !text || *text == present)
        return;
    if (const auto values = read_entry(stop, *text))
        on_typed(stop, *values);
    else
        show_message(stop, values.error().reason);
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
