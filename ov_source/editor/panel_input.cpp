#include "editor/panel_input.h"

#include "vstgui/lib/cscrollview.h"
#include "vstgui/lib/events.h"

#include <algorithm>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr std::uint64_t pause_between_steps_ms = 1000;

} // namespace

panel_input::panel_input(CFrame& frame, CScrollView& column, CViewContainer& panel, std::span<const panel_stop> stops,
                         language_id language, panel_input_links all_links)
    : frame(frame)
    , column(column)
    , links(std::move(all_links))
    , stops(stops)
    , values(frame, panel, stops, language,
             [this](const panel_stop& stop, const std::vector<float>& typed)
             {
                 change_in_one_step([&] { set_values(stop, typed); });
                 focus.give_to(stop); // the next keys act on the control that was typed into
             })
    , focus(frame, column, panel, stops)
    , keys(frame, [this](key_action action, const KeyboardEvent& event) { return act(action, event); })
{
    frame.registerMouseObserver(this);
}

panel_input::~panel_input()
{
    end_nudges();
    frame.unregisterMouseObserver(this);
}

int panel_input::undo_position() const
{
    const auto component = links.component();
    return component ? component->get_undo_range().position : 0;
}

bool panel_input::begins(const CControl& control)
{
    changed(control);
    return find_stop(stops, &control) && is_second_click && edited_last == &control &&
           position_after == undo_position();
}

void panel_input::changed(const CControl& control)
{
    if (const auto* const stop = find_stop(stops, &control))
        values.show_bubble(*stop);
}

void panel_input::ends(const CControl& control)
{
    values.hide_bubble();
    // Compared at the next edit: nothing else may have moved the history in between.
    edited_last = &control;
    position_after = undo_position();
}

void panel_input::idle(std::uint64_t now_ms)
{
    values.idle(now_ms);
    if (!nudged)
        return;
    // Keys carry no time of this clock: the pause is counted from the first idle after the key.
    if (!nudged_at)
        nudged_at = now_ms;
    else if (now_ms - *nudged_at >= pause_between_steps_ms)
        end_nudges();
}

void panel_input::onMouseEvent(MouseEvent& event, CFrame*)
{
    if (event.type == EventType::MouseDown)
    {
        end_nudges();
        focus.hide_ring();
        values.keep_shown({});
        values.hide_bubble();
        is_second_click = static_cast<MouseDownEvent&>(event).clickCount == 2 && event.buttonState.isLeft();
        if (!is_second_click)
            edited_last = nullptr;
    }
    if (!event.buttonState.empty())
        return;
    // With a button held, the pointer drags: what it passes over is not shown.
    const bool is_over_panel = column.getViewSize().pointInside(event.mousePosition) && !frame.getModalView();
    values.point_at(is_over_panel ? std::optional(event.mousePosition) : std::nullopt);
}

bool panel_input::act(key_action action, const KeyboardEvent& event)
{
    // The control that is dragged or typed into changes its value by itself.
    const bool is_dragging = std::ranges::any_of(stops, [](const panel_stop& s) { return s.control->isEditing(); });
    if (is_dragging || values.is_typing())
        return false;
    const bool is_nudge = action == key_action::nudge || action == key_action::nudge_finely;
    if (is_nudge)
        return nudge_current(direction_of(event.virt), action == key_action::nudge_finely);
    end_nudges();
    // Any action but a nudge has ended the open undo step, so that undo acts on a whole one.
    switch (action)
    {
    case key_action::next_control:
    case key_action::previous_control:
        focus.step(action == key_action::previous_control);
        show_current();
        return true;
    case key_action::reset_control:
        return reset_current();
    default:
        links.on_action(action);
        return true;
    }
}

void panel_input::show_current()
{
    const auto* const stop = focus.current();
    focus.show_ring();
    values.keep_shown(stop ? std::optional(stop->slot) : std::nullopt);
}

bool panel_input::nudge_current(const CPoint& direction, bool finely)
{
    const auto* const stop = focus.current();
    if (!stop)
        return false;
    if (nudged != stop)
        end_nudges();
    if (!std::exchange(nudged, stop))
        links.begin_gesture();
    // Each key restarts the pause.
    nudged_at.reset();
    show_current();
    nudge(*stop, direction, finely);
    values.show_bubble(*stop);
    return true;
}

void panel_input::end_nudges()
{
    if (!std::exchange(nudged, nullptr))
        return;
    links.end_gesture();
    values.hide_bubble();
}

bool panel_input::reset_current()
{
    const auto* const stop = focus.current();
    if (!stop)
        return false;
    show_current();
    // No empty undo step.
    if (!is_at_default(*stop))
        change_in_one_step([&] { reset(*stop); });
    return true;
}

void panel_input::change_in_one_step(const std::function<void()>& change)
{
    links.begin_gesture();
    change();
    links.end_gesture();
}

} // namespace ov1
