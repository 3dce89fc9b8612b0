// A button that changes between its icon and another one.
#pragma once

#include "editor/controls/widgets/cov_button.h"

namespace ov1
{

class CBlinkingButton : public COVButton
{
public:
    using COVButton::COVButton;

    /// Begins with the button's own icon; nothing blinks without a blink icon. A period is the time of one phase.
    void setBlinkParams(bool blink, int period_ms);
    /// A sheet of frames as the button's icon; null for none.
    void setBlinkIcon(VSTGUI::CBitmap* sheet);

    /// Counts the time of one idle call; what goes beyond a period counts for the next, so that the rhythm holds.
    void onIdle() override;

    bool isBlinkPhaseOn() const { return phase_on; }

protected:
    VSTGUI::CBitmap* iconToDraw() const override;

private:
    void askForIdleCalls();

    VSTGUI::SharedPointer<VSTGUI::CBitmap> blink_icon;
    double period_ms = 0.0;
    double remaining_ms = 0.0;
    bool blinking = false;
    bool phase_on = false;
};

} // namespace ov1
