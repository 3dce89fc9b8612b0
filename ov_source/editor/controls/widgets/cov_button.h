// A button with a sprite for its icon.
#pragma once

#include "vstgui/vstgui.h"

namespace ov1
{

/// Draws, without a box: the title; over it the background bitmap, its upper half, or the lower one while pressed; over
/// that the icon, a sheet of 2 x 2 frames: the right column while the mouse is over the button, the lower row while the
/// button is on. Everything is dimmed while the mouse is disabled.
class COVButton : public VSTGUI::CTextButton
{
public:
    /// Kick style: the listener gets 1 and then 0 when the mouse is released over the button. On/off style: it gets the
    /// new value.
    COVButton(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag, Style style,
              VSTGUI::UTF8StringPtr title);

    /// The button is on while its value is above 0.5.
    void setValue(float new_value) override;
    /// The sheet of frames; null for none.
    void setIcon(VSTGUI::CBitmap* sheet) override;

    bool isPressed() const { return pressed; }
    bool isHovered() const { return hovered; }
    bool isOn() const { return on; }

    void draw(VSTGUI::CDrawContext* context) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;
    void onMouseUpEvent(VSTGUI::MouseUpEvent& event) override;
    void onMouseEnterEvent(VSTGUI::MouseEnterEvent& event) override;
    void onMouseExitEvent(VSTGUI::MouseExitEvent& event) override;
    void onMouseCancelEvent(VSTGUI::MouseCancelEvent& event) override;

protected:
    virtual VSTGUI::CBitmap* iconToDraw() const { return frames; }

    /// 1, and less for a button that cannot be pressed.
    float opacity() const;

private:
    void setHovered(bool over);

    VSTGUI::SharedPointer<VSTGUI::CBitmap> frames;
    bool pressed = false;
    bool hovered = false;
    bool on = false;
};

} // namespace ov1
