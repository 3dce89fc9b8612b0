// The path of a drag as a control takes it: with the mouse, at a tenth of its pace, or along one axis.
#pragma once

#include "vstgui/vstgui.h"

namespace ov1
{

/// What the keys that are held make of a drag.
struct drag_hold
{
    bool is_fine = false;   ///< Shift: a tenth of the mouse's path
    bool is_locked = false; ///< Control: along the axis on which the mouse moves first

    bool operator==(const drag_hold&) const = default;
};

drag_hold hold_of(const VSTGUI::Modifiers& keys);

/// Without a key the drag is where the mouse is. A key pressed at the start or on the way goes on from where the handle
/// stands, a key let go from where the drag is: the handle never jumps. One object serves one drag after the other.
class fine_drag
{
public:
    /// Begins a drag and gives back where the press counts: at the mouse, or with a key held at the handle.
    VSTGUI::CPoint press(const VSTGUI::CPoint& mouse, const VSTGUI::CPoint& handle, drag_hold hold);
    /// Where the mouse's new place counts. handle is where the handle stands before, within its reach.
    VSTGUI::CPoint move(const VSTGUI::CPoint& mouse, const VSTGUI::CPoint& handle, drag_hold hold);

private:
    enum class axis
    {
        undecided,
        horizontal,
        vertical,
    };

    VSTGUI::CPoint kept_on_axis(const VSTGUI::CPoint& path);

    drag_hold held;
    VSTGUI::CPoint mouse_before;
    VSTGUI::CPoint place;
    VSTGUI::CPoint off_mouse;     // from the mouse to the place
    VSTGUI::CPoint since_locking; // the mouse's path until the axis is chosen
    axis locked_to = axis::undecided;
};

/// Hands an event on with another place, and without Shift, which the toolkit's sliders would take for a pace of their
/// own; both come back with the end of this object.
class steered_event
{
public:
    steered_event(VSTGUI::MouseEvent& event, const VSTGUI::CPoint& place);
    ~steered_event();
    steered_event(const steered_event&) = delete;
    steered_event& operator=(const steered_event&) = delete;

private:
    VSTGUI::MouseEvent& event;
    const VSTGUI::CPoint mouse;
    const VSTGUI::Modifiers keys;
};

} // namespace ov1
