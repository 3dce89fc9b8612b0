// A round colour wheel on which one handle sets two parameters, an angle and a radius.
#pragma once

#include "editor/controls/geometry/pad_geometry.h"
#include "editor/controls/widgets/fine_drag.h"
#include "vstgui/vstgui.h"

namespace ov1
{

/// The control's value is the handle's packed place, its own tag the angle's. The handle jumps to a press of the left
/// button, unless Shift or Control is held: then it is dragged from where it stands, see fine_drag. The right button,
/// and Alt with the left one, reset handle, angle and radius. Mouse wheel events are not consumed, so that they scroll
/// the panel. Presses outside the wheel reach the view beneath.
class COVColorWheelXYPad : public VSTGUI::CXYPad
{
public:
    /// The tags are the uids of the two parameters. The background is drawn in the middle of the view, at its own size.
    COVColorWheelXYPad(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t angle_tag,
                       std::int32_t radius_tag, VSTGUI::CBitmap* background);

    /// The handle's diameter, in points; the wheel's rim is computed from it and from the frame width set before.
    void setRoundRectRadius(const VSTGUI::CCoord& diameter) override;

    virtual std::int32_t getAngleTag() const { return getTag(); }
    virtual std::int32_t getRadiusTag() const { return radius_tag; }

    /// Move the handle and redraw, without a call to the listener. The handle's place is rounded, and angle and radius
    /// are then recomputed from it, unless it lies on an axis. Setting the present value does nothing.
    virtual void setRadius(float percent);
    virtual void setAngle(float degrees);
    virtual float getRadius() const { return polar.radius; } ///< percent, 0..100
    virtual float getAngle() const { return polar.angle; }   ///< degrees, 0 <= angle < 360

    void setValue(float packed) override;

    /// The middle of the drawn handle, in the parent's points.
    VSTGUI::CPoint getHandleCentre() const;

    void draw(VSTGUI::CDrawContext* context) override;
    bool hitTest(const VSTGUI::CPoint& where, const VSTGUI::Event& event = VSTGUI::noEvent()) override;
    void onMouseDownEvent(VSTGUI::MouseDownEvent& event) override;
    void onMouseMoveEvent(VSTGUI::MouseMoveEvent& event) override;
    /// Restores the handle, angle and radius of before the press.
    void onMouseCancelEvent(VSTGUI::MouseCancelEvent& event) override;
    void onMouseWheelEvent(VSTGUI::MouseWheelEvent& event) override;
    /// Escape cancels a drag.
    void onKeyboardEvent(VSTGUI::KeyboardEvent& event) override;

private:
    struct pad_state
    {
        float value = pad_centre_value;
        pad_polar polar;
    };

    void beginDrag(VSTGUI::MouseDownEvent& event);
    void reset();
    void restore(const pad_state& state);
    void placeHandle();
    VSTGUI::CPoint pointOf(const pad_place& place) const;
    void drawHandle(VSTGUI::CDrawContext& context) const;

    std::int32_t radius_tag;
    pad_polar polar;
    pad_state at_press;
    fine_drag drag;
    float max_radius = 1.0F;
};

} // namespace ov1
