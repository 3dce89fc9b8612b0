// A plain horizontal slider that can move a partner slider with it.
#pragma once

#include "editor/controls/widgets/fine_drag.h"
#include "vstgui/vstgui.h"

namespace ov1
{

/// A style bit of the toolkit: the value grows to the right.
inline constexpr std::int32_t least_value_on_the_left = 4;

/// Dragged by its handle, at a tenth of the mouse's speed while Shift is held. Alt with the left button, or a double
/// click, sets the default value. A drag that begins with Control held moves the partner by the same amount while
/// Control stays held; the partner reports this as an edit of its own.
class CSimpleSlider : public VSTGUI::CHorizontalSlider
{
public:
    /// The handle's left edge moves from min_pos to max_pos, in the parent's points; style is a set of the
    /// toolkit's bits.
    CSimpleSlider(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag, std::int32_t min_pos,
                  std::int32_t max_pos, VSTGUI::CBitmap* handle, const VSTGUI::CPoint& offset, std::int32_t style);

    /// Not owned; it must outlive this slider, or be replaced before it is destroyed. Null for none.
    void setPartner(CSimpleSlider* other) { partner = other; }

    // The three options are off unless set. The wheel moves the slider up for a turn away from the user.
    void setDrawCenterLine(bool on);
    void setResetOnRightClick(bool on) { resets_on_right_click = on; }
    void setAcceptMouseWheel(bool on) { accepts_wheel = on; }

    void draw(VSTGUI::CDrawContext* context) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;
    void onMouseMoveEvent(VSTGUI::MouseMoveEvent& event) override;
    void onMouseUpEvent(VSTGUI::MouseUpEvent& event) override;
    /// Restores both sliders' values of before the press.
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
    fine_drag drag;
    VSTGUI::CCoord grip = 0.0;               // from the handle's exact left edge to where it was pressed
    VSTGUI::CCoord beyond_whole_point = 0.0; // of that edge, at the press
    CSimpleSlider* ganged = nullptr;         // the partner, while this drag moves it
    float ganged_value_at_press = 0.0F;
    bool draws_center_line = false;
    bool resets_on_right_click = false;
    bool accepts_wheel = false;
};

} // namespace ov1
