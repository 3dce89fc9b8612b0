// A vertical slider drawn as an arrow that swings along an arc beside a wheel.
#pragma once

#include "editor/controls/geometry/arc_geometry.h"
#include "editor/controls/widgets/fine_drag.h"
#include "vstgui/vstgui.h"

namespace ov1
{

/// The arrow jumps to a press of the left button, unless Shift is held: then it is dragged finely from where it stands.
/// The right button, Alt with the left one, and a double click set the default value. Wheel events are not
/// consumed, so that they scroll the panel.
class COVArrowArcSlider : public VSTGUI::CVerticalSlider
{
public:
    /// A press at min_pos, in the parent's points, gives value 1, one at max_pos value 0.
    COVArrowArcSlider(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag,
                      std::int32_t min_pos, std::int32_t max_pos, VSTGUI::CBitmap* background);

    /// pivot_right, unless set.
    virtual void setOrientation(COVArrowArcOrientation side);
    /// The angle between two arrows, half of it on either side of the value's angle. At 0 there is one arrow.
    virtual void setSpreadAngle(double degrees);

    /// The tip of the arrow, of the upper one where there are two, in the parent's points.
    VSTGUI::CPoint getTip() const;

    void draw(VSTGUI::CDrawContext* context) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;
    void onMouseMoveEvent(VSTGUI::MouseMoveEvent& event) override;
    void onMouseWheelEvent(VSTGUI::MouseWheelEvent& event) override;

private:
    arrow_outline outlineAt(double angle) const;
    VSTGUI::CPoint placeOfValue() const;
    void drawArrow(VSTGUI::CDrawContext& context, double angle) const;

    arc_angles angles;
    VSTGUI::CCoord highest; // from the view's top to value 1, and so to value 0
    VSTGUI::CCoord lowest;
    fine_drag drag;
    double spread = 0.0; // radians
    COVArrowArcOrientation orientation = COVArrowArcOrientation::pivot_right;
};

} // namespace ov1
