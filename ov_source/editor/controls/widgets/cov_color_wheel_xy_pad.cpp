#include "editor/controls/widgets/cov_color_wheel_xy_pad.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/widgets/reset_click.h"

namespace ov1
{

namespace
{

constexpr float wheel_increment = 0.04F; // unused while the pad passes wheel events on

} // namespace

COVColorWheelXYPad::COVColorWheelXYPad(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener,
                                       std::int32_t angle_tag, std::int32_t radius_tag, VSTGUI::CBitmap* background)
    : CXYPad(size)
    , radius_tag(radius_tag)
{
    setTag(angle_tag);
    setListener(listener);
    setBackground(background);
    setTransparency(true);
    setWantsFocus(true);
    setFrameWidth(pad_handle_frame_points);
    COVColorWheelXYPad::setRoundRectRadius(pad_handle_points); // after the frame width, which it uses
    setDefaultValues(0.5F, 0.5F);
    COVColorWheelXYPad::setValue(pad_centre_value);
    // CXYPad has no fill colour; drawHandle uses that of the font.
    setFontColor(style::handle_fill);
    setWheelInc(wheel_increment);
}

void COVColorWheelXYPad::setRoundRectRadius(const VSTGUI::CCoord& diameter)
{
    CXYPad::setRoundRectRadius(diameter);
    max_radius = max_radius_of(getWidth(), diameter, getFrameWidth());
}

void COVColorWheelXYPad::setRadius(float percent)
{
    if (percent == polar.radius)
        return;
    polar.radius = percent;
    placeHandle();
}

void COVColorWheelXYPad::setAngle(float degrees)
{
    if (degrees == polar.angle)
        return;
    polar.angle = degrees;
    placeHandle();
}

void COVColorWheelXYPad::placeHandle()
{
    setValue(pack_pad_value(place_of(polar, max_radius)));
    invalid();
}

void COVColorWheelXYPad::setValue(float packed)
{
    CXYPad::setValue(packed);
    polar = polar_of(unpack_pad_value(packed), max_radius).value_or(polar); // on an axis angle and radius are kept
}

void COVColorWheelXYPad::draw(VSTGUI::CDrawContext* context)
{
    if (auto* bitmap = getDrawBackground())
    {
        // The view is a point larger than its picture.
        const VSTGUI::CPoint margin = getViewSize().getSize() - bitmap->getSize();
        const VSTGUI::CPoint corner = getViewSize().getTopLeft() + VSTGUI::CPoint(margin.x / 2.0, margin.y / 2.0);
        bitmap->draw(context, VSTGUI::CRect(corner, bitmap->getSize()));
    }
    drawHandle(*context);
    setDirty(false);
}

VSTGUI::CPoint COVColorWheelXYPad::pointOf(const pad_place& place) const
{
    const pad_point centre = handle_centre(place, getWidth(), getHeight(), getRoundRectRadius());
    return getViewSize().getTopLeft() + VSTGUI::CPoint(centre.x, centre.y);
}

VSTGUI::CPoint COVColorWheelXYPad::getHandleCentre() const
{
    return pointOf(pulled_onto_rim(unpack_pad_value(getValue()), max_radius));
}

void COVColorWheelXYPad::drawHandle(VSTGUI::CDrawContext& context) const
{
    VSTGUI::CRect circle(getHandleCentre(), {});
    circle.extend(getRoundRectRadius() / 2.0, getRoundRectRadius() / 2.0);

    const auto path = VSTGUI::owned(context.createGraphicsPath());
    if (!path)
        return;
    path->addEllipse(circle); // drawEllipse draws a dot on Linux
    context.setDrawMode(VSTGUI::kAntiAliasing | VSTGUI::kNonIntegralMode);
    context.setLineStyle(VSTGUI::kLineSolid);
    context.setLineWidth(getFrameWidth());
    context.setFrameColor(getFrameColor());
    context.setFillColor(getFontColor());
    context.drawGraphicsPath(path, VSTGUI::CDrawContext::kPathFilled);
    context.drawGraphicsPath(path, VSTGUI::CDrawContext::kPathStroked);
}

bool COVColorWheelXYPad::hitTest(const VSTGUI::CPoint& where, const VSTGUI::Event& event)
{
    // The corners outside the wheel belong to the arcs that lie beneath.
    const VSTGUI::CPoint point = where - getViewSize().getTopLeft();
    return pad_contains({point.x, point.y}, getWidth(), getHeight(), max_radius) && CXYPad::hitTest(where, event);
}

void COVColorWheelXYPad::onMouseDownEvent(VSTGUI::MouseDownEvent& event)
{
    if (is_right_click(event) || is_alt_click(event))
    {
        reset();
        consume_press(event);
    }
    else if (event.buttonState.isLeft())
        beginDrag(event);
}

void COVColorWheelXYPad::beginDrag(VSTGUI::MouseDownEvent& event)
{
    at_press = {getValue(), polar};
    // The unlimited place: a handle beyond the rim does not move before the mouse does.
    const redirected_event redirected(
        event, drag.press(event.mousePosition, pointOf(unpack_pad_value(getValue())), hold_of(event.modifiers)));
    CXYPad::onMouseDownEvent(event);
}

void COVColorWheelXYPad::onMouseMoveEvent(VSTGUI::MouseMoveEvent& event)
{
    if (!isEditing())
        return CXYPad::onMouseMoveEvent(event);
    const redirected_event redirected(event,
                                      drag.move(event.mousePosition, getHandleCentre(), hold_of(event.modifiers)));
    CXYPad::onMouseMoveEvent(event);
}

void COVColorWheelXYPad::reset()
{
    // A handle that was dragged to the exact centre has the default value, but still its former angle and radius.
    const bool is_reset = getValue() == getDefaultValue() && polar.angle == 0.0F && polar.radius == 0.0F;
    if (is_reset || isEditing())
        return;
    beginEdit();
    restore({getDefaultValue(), {}});
    endEdit();
}

void COVColorWheelXYPad::restore(const pad_state& state)
{
    setValue(state.value); // rounds angle and radius, so they are set after it
    polar = state.polar;
    valueChanged();
    invalid();
}

void COVColorWheelXYPad::onMouseCancelEvent(VSTGUI::MouseCancelEvent& event)
{
    if (!isEditing())
        return;
    restore(at_press);
    endEdit();
    event.consumed = true;
}

/// Empty, so that the event stays unconsumed and scrolls the panel.
void COVColorWheelXYPad::onMouseWheelEvent(VSTGUI::MouseWheelEvent&) {}

void COVColorWheelXYPad::onKeyboardEvent(VSTGUI::KeyboardEvent& event)
{
    if (event.type != VSTGUI::EventType::KeyDown || event.virt != VSTGUI::VirtualKey::Escape || !isEditing())
        return;
    VSTGUI::MouseCancelEvent cancel;
    onMouseCancelEvent(cancel);
    event.consumed = true;
}

} // namespace ov1
