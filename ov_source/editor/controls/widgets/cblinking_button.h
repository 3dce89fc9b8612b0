// A button that alternates between two icons.
#pragma once

#include "editor/controls/widgets/cov_button.h"

namespace ov1
{

class CBlinkingButton : public COVButton
{
public:
    using COVButton::COVButton;

    /// Starts with the button's own icon, for one period; then the blink icon is drawn for one period, and so on.
    /// Without a blink icon nothing changes.
    void setBlinkParams(bool blink, int period_ms);
    /// A sheet of frames as the button's icon; null for none.
    void setBlinkIcon(VSTGUI::CBitmap* sheet);

    /// Advances by the time between two idle calls. Time beyond the end of a period counts for the next one, so that
    /// the rhythm does not drift.
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
