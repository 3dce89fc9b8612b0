// Mouse presses that reset a control to its default value.
#pragma once

#include "vstgui/vstgui.h"

namespace ov1
{

/// Whether only the right button is pressed.
bool is_right_click(const VSTGUI::MouseDownEvent& event);

/// Whether only the left button is pressed, with Alt and no other key.
bool is_alt_click(const VSTGUI::MouseDownEvent& event);

/// Whether this is the second press of a double click with the left button, without a key.
bool is_double_click(const VSTGUI::MouseDownEvent& event);

/// Consumes a press, and asks the toolkit not to send the moves and the release that follow it.
void consume_press(VSTGUI::MouseDownEvent& event);

/// Sets the default value as one edit, unless the control has it already or is being edited.
void reset_to_default(VSTGUI::CControl& control);

/// For CControl::CheckDefaultValueEventFunc: switches the toolkit's own reset off. That one is left button and Control:
/// it would keep a pad's angle and radius, and it would consume the press that begins a ganged drag. The editor's
/// sliders and pads handle Alt-clicks themselves; buttons and scroll bars have nothing to reset.
bool leave_resets_to_controls(VSTGUI::CControl* control, VSTGUI::MouseDownEvent& event);

} // namespace ov1
