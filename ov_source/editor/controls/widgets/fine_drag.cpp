#include "editor/controls/widgets/fine_drag.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

namespace
{

constexpr double fine_factor = 0.1;
constexpr VSTGUI::CCoord least_movement_for_axis = 2.0; // less may be a tremor of the hand

VSTGUI::CPoint times(const VSTGUI::CPoint& p, double factor) { return {p.x * factor, p.y * factor}; }

} // namespace

drag_hold hold_of(const VSTGUI::Modifiers& keys)
{
    return {keys.has(VSTGUI::ModifierKey::Shift), keys.has(VSTGUI::ModifierKey::Control)};
}

VSTGUI::CPoint fine_drag::press(const VSTGUI::CPoint& mouse, const VSTGUI::CPoint& handle, drag_hold hold)
{
    held = hold;
    mouse_before = mouse;
    place = hold == drag_hold{} ? mouse : handle;
    off_mouse = place - mouse;
    since_locking = {};
    locked_to = axis::undecided;
    return place;
}

VSTGUI::CPoint fine_drag::move(const VSTGUI::CPoint& mouse, const VSTGUI::CPoint& handle, drag_hold hold)
{
    if (hold != held)
    {
        if (hold != drag_hold{})
            place =
                handle; // a mouse beyond the handle's range would otherwise have to come back at a tenth of its speed
        if (hold.is_locked && !held.is_locked)
        {
            since_locking = {};
            locked_to = axis::undecided;
        }
        off_mouse = place - mouse_before; // what the drag has lost or gained while keys were held
        held = hold;
    }
    const VSTGUI::CPoint movement = mouse - mouse_before;
    mouse_before = mouse;
    // At full speed the place follows from the mouse alone, so that no rounding error adds up.
    if (held == drag_hold{})
        return place = mouse + off_mouse;
    place += times(held.is_locked ? kept_on_axis(movement) : movement, held.is_fine ? fine_factor : 1.0);
    off_mouse = place - mouse;
    return place;
}

VSTGUI::CPoint fine_drag::kept_on_axis(const VSTGUI::CPoint& movement)
{
    VSTGUI::CPoint taken = movement;
    if (locked_to == axis::undecided)
    {
        since_locking += movement;
        const double across = std::abs(since_locking.x), down = std::abs(since_locking.y);
        if (std::max(across, down) < least_movement_for_axis)
            return {};
        locked_to = across >= down ? axis::horizontal : axis::vertical;
        taken = since_locking; // nothing was moved before the axis was known
    }
    return locked_to == axis::horizontal ? VSTGUI::CPoint(taken.x, 0.0) : VSTGUI::CPoint(0.0, taken.y);
}

redirected_event::redirected_event(VSTGUI::MouseEvent& event, const VSTGUI::CPoint& place)
    : event(event)
    , mouse(event.mousePosition)
    , keys(event.modifiers)
{
    event.mousePosition = place;
    // With Shift the toolkit would apply a fine factor of its own on top.
    event.modifiers.remove(VSTGUI::ModifierKey::Shift);
}

redirected_event::~redirected_event()
{
    event.mousePosition = mouse;
    event.modifiers = keys;
}

} // namespace ov1
