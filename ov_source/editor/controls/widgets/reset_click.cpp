#include "editor/controls/widgets/reset_click.h"

namespace ov1
{

bool is_right_click(const VSTGUI::MouseDownEvent& event) { return event.buttonState.isRight(); }

bool is_alt_click(const VSTGUI::MouseDownEvent& event)
{
    return event.buttonState.isLeft() && event.modifiers.is(VSTGUI::ModifierKey::Alt);
}

bool is_double_click(const VSTGUI::MouseDownEvent& event)
{
    return event.buttonState.isLeft() && event.modifiers.empty() && event.clickCount == 2;
}

void consume_press(VSTGUI::MouseDownEvent& event)
{
    event.consumed = true;
    event.ignoreFollowUpMoveAndUpEvents(true);
}

void reset_to_default(VSTGUI::CControl& control)
{
    if (control.isEditing() || control.getValue() == control.getDefaultValue())
        return;
    // The pair of calls makes the reset one undo step.
    control.beginEdit();
    control.setValue(control.getDefaultValue());
    control.valueChanged();
    control.invalid();
    control.endEdit();
}

bool leave_resets_to_controls(VSTGUI::CControl*, VSTGUI::MouseDownEvent&) { return false; }

} // namespace ov1
