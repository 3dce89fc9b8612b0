#include "editor/controls/widgets/cblinking_button.h"

#include <algorithm>

namespace ov1
{

void CBlinkingButton::setBlinkParams(bool blink, int period)
{
    blinking = blink;
    period_ms = remaining_ms = std::max(period, 0);
    phase_on = false;
    askForIdleCalls();
}

void CBlinkingButton::setBlinkIcon(VSTGUI::CBitmap* sheet)
{
    blink_icon = sheet;
    askForIdleCalls();
}

void CBlinkingButton::askForIdleCalls()
{
    // Idle calls come 30 times a second: a button that does not blink asks for none.
    setWantsIdle(blinking && blink_icon);
    invalid();
}

void CBlinkingButton::onIdle()
{
    if (!blinking)
        return;
    // The toolkit passes no time; idleRate is the number of idle calls in a second.
    remaining_ms -= idleRate == 0 ? 0.0 : 1000.0 / idleRate;
    if (!(remaining_ms < 0.0))
        return;
    phase_on = !phase_on;
    remaining_ms = std::max(remaining_ms + period_ms, -period_ms); // at most one change per idle call
    invalid();
}

VSTGUI::CBitmap* CBlinkingButton::iconToDraw() const
{
    return phase_on && blink_icon ? blink_icon.get() : COVButton::iconToDraw();
}

} // namespace ov1
