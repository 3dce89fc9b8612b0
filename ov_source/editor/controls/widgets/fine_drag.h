// Drags with Shift and Control: at a tenth of the mouse's speed, or along one axis.
#pragma once

#include "vstgui/vstgui.h"

namespace ov1
{

/// How the held keys change a drag.
struct drag_hold
{
    bool is_fine = false;   ///< Shift: a tenth of the mouse's movement
    bool is_locked = false; ///< Control: along the axis that the mouse moves along first

    bool operator==(const drag_hold&) const = default;
};

/// Which of the two keys are held.
drag_hold hold_of(const VSTGUI::Modifiers& keys);

/// Turns mouse positions into positions of the dragged handle. Without a key the two are equal. A key that is pressed
/// at the start or during the drag continues from the handle's position; when it is released, the drag continues from
/// where it is, at the mouse's full speed: the handle never jumps. One object serves one drag after another.
class fine_drag
{
public:
    /// Begins a drag and returns where it starts: at the mouse, or, while a key is held, at the handle.
    VSTGUI::CPoint press(const VSTGUI::CPoint& mouse, const VSTGUI::CPoint& handle, drag_hold hold);
    /// Returns where the drag is, for the mouse's new position. handle is the handle's present position, which the
    /// control has kept within its range.
    VSTGUI::CPoint move(const VSTGUI::CPoint& mouse, const VSTGUI::CPoint& handle, drag_hold hold);

private:
    enum class axis
    {
        undecided,
        horizontal,
        vertical,
    };

    VSTGUI::CPoint kept_on_axis(const VSTGUI::CPoint& movement);

    drag_hold held;
    VSTGUI::CPoint mouse_before;
    VSTGUI::CPoint place;
    VSTGUI::CPoint off_mouse;     // from the mouse to place
    VSTGUI::CPoint since_locking; // the mouse's movement until the axis is chosen
    axis locked_to = axis::undecided;
};

/// While this object exists, the event has another mouse position, and no Shift, which the toolkit's sliders would use
/// for a fine mode of their own. The destructor restores both.
class redirected_event
{
public:
    redirected_event(VSTGUI::MouseEvent& event, const VSTGUI::CPoint& place);
    ~redirected_event();
    redirected_event(const redirected_event&) = delete;
    redirected_event& operator=(const redirected_event&) = delete;

private:
    VSTGUI::MouseEvent& event;
    const VSTGUI::CPoint mouse;
    const VSTGUI::Modifiers keys;
};

} // namespace ov1
