// A plain horizontal slider that can drag a partner along.
#pragma once

#include "editor/controls/widgets/fine_drag.h"
#include "vstgui/vstgui.h"

namespace ov1
{

/// Dragged by its handle, finely while Shift is held; Alt with the left button, and a double click, set the default
/// value. A drag that begins with Control held moves
/// the partner by the same amounts while Control stays held, as an edit of the partner's own.
class CSimpleSlider : public VSTGUI::CHorizontalSlider
{
public:
    /// The handle moves from min_pos to max_pos, in the parent's points; style is the toolkit's set of bits, 4 for the
    /// least value on the left.
    CSimpleSlider(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag, std::int32_t min_pos,
                  std::int32_t max_pos, VSTGUI::CBitmap* handle, const VSTGUI::CPoint& offset, std::int32_t style);

    /// Not owned: it has to live as long as it is set here. Null for none.
    void setPartner(CSimpleSlider* other) { partner = other; }

    // All three are off unless set.
    void setDrawCenterLine(bool on);
    void setResetOnRightClick(bool on) { resets_on_right_click = on; }
    void setAcceptMouseWheel(bool on) { accepts_wheel = on; }

    void draw(VSTGUI::CDrawContext* context) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;
    void onMouseMoveEvent(VSTGUI::MouseMoveEvent& event) override;
    void onMouseUpEvent(VSTGUI::MouseUpEvent& event) override;
    /// Gives back both sliders' values of the press.
    VSTGUI::CMouseEventResult onMouseCancel() override;
    void onMouseWheelEvent(VSTGUI::MouseWheelEvent& event) override;

private:
    void pressHandle(VSTGUI::MouseDownEvent& event);
    void dragHandle(VSTGUI::MouseMoveEvent& event);
    VSTGUI::CCoord placeOfValue() const;
    void beginGang(float value_before);
    void dragPartner(float change);
    void endGang();

    CSimpleSlider* partner = nullptr;
    fine_drag path;
    VSTGUI::CCoord grip = 0.0;               // from the handle's exact left edge to where it was pressed
    VSTGUI::CCoord beyond_whole_point = 0.0; // of that edge, at the press
    CSimpleSlider* ganged = nullptr;         // the partner, while it is dragged along
    float ganged_value_at_press = 0.0F;
    bool draws_center_line = false;
    bool resets_on_right_click = false;
    bool accepts_wheel = false;
};

} // namespace ov1
