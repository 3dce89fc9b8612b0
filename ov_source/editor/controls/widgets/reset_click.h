// Presses that set a control back to its default value.
#pragma once

#include "vstgui/vstgui.h"

namespace ov1
{

/// Whether a press is made with the right button and no other.
bool is_right_click(const VSTGUI::MouseDownEvent& event);

/// Whether a press is made with the left button and Alt alone.
bool is_alt_click(const VSTGUI::MouseDownEvent& event);

/// Whether a press is the second of a double click with the left button, without a key.
bool is_double_click(const VSTGUI::MouseDownEvent& event);

/// Takes a press that needs no moves and no release.
void consume_press(VSTGUI::MouseDownEvent& event);

/// Sets the default value as one edit, unless the control has it already or is being edited.
void reset_to_default(VSTGUI::CControl& control);

/// For CControl::CheckDefaultValueEventFunc: the toolkit's own reset, left with Control, is switched off, since it
/// would leave a pad's angle and radius and take the ganged drag's press. The editor's sliders and pads see to
/// Alt-clicks themselves; buttons and scroll bars have nothing to reset.
bool leave_resets_to_controls(VSTGUI::CControl* control, VSTGUI::MouseDownEvent& event);

} // namespace ov1
