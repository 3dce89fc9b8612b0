#include "editor/controls/widgets/cov_arrow_arc_slider.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/widgets/reset_click.h"

#include <numbers>

namespace ov1
{

namespace
{

constexpr double radians_per_degree = std::numbers::pi / 180.0;

} // namespace

COVArrowArcSlider::COVArrowArcSlider(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag,
                                     std::int32_t min_pos, std::int32_t max_pos, VSTGUI::CBitmap* background)
    : CVerticalSlider(size, listener, tag, min_pos, max_pos, nullptr, background)
    , angles(arc_angles_of(size.getWidth(), size.getCenter().y, min_pos, max_pos))
    , highest(min_pos - size.top)
    , lowest(max_pos - size.top)
{
    setTransparency(true);
    // The arrow jumps to a press, wherever it was before.
    setSliderMode(VSTGUI::CSliderMode::FreeClick);
    // The toolkit computes a drag from the view's top and from half the height of the handle. Without a handle it uses
    // a height of 1.
    setOffsetHandle({0.0, min_pos - size.top + 0.5});
    setFrameColor(VSTGUI::kBlackCColor);
    setBackColor(style::arrow);
    setFrameWidth(arrow_frame_points);
}

void COVArrowArcSlider::setOrientation(COVArrowArcOrientation side)
{
    if (side == orientation)
        return;
    orientation = side;
    invalid();
}

void COVArrowArcSlider::setSpreadAngle(double degrees)
{
    const double radians = degrees * radians_per_degree;
    if (radians == spread)
        return;
    spread = radians;
    invalid();
}

void COVArrowArcSlider::draw(VSTGUI::CDrawContext* context)
{
    if (auto* bitmap = getDrawBackground())
        bitmap->draw(context, getViewSize());
    context->setDrawMode(VSTGUI::kAntiAliasing | VSTGUI::kNonIntegralMode);
    context->setLineStyle(VSTGUI::kLineSolid);
    context->setLineWidth(getFrameWidth());
    context->setFrameColor(getFrameColor());
    context->setFillColor(getBackColor());
    const double angle = angles.at(getValueNormalized());
    drawArrow(*context, angle - spread / 2.0);
    if (spread > 0.0)
        drawArrow(*context, angle + spread / 2.0);
    setDirty(false);
}

arrow_outline COVArrowArcSlider::outlineAt(double angle) const
{
    const VSTGUI::CRect& view = getViewSize();
    return arrow_outline_of({view.left, view.top, view.right, view.bottom, getFrameWidth(), orientation}, angle);
}

VSTGUI::CPoint COVArrowArcSlider::getTip() const
{
    // Corner 2 of an outline is its tip.
    const arc_point tip = outlineAt(angles.at(getValueNormalized()) + spread / 2.0)[2];
    return {tip.x, tip.y};
}

/// The point at which a press gives the present value, in the parent's points.
VSTGUI::CPoint COVArrowArcSlider::placeOfValue() const
{
    const VSTGUI::CRect& view = getViewSize();
    return {view.getCenter().x, view.top + lowest + (highest - lowest) * getValueNormalized()};
}

void COVArrowArcSlider::drawArrow(VSTGUI::CDrawContext& context, double angle) const
{
    const auto path = VSTGUI::owned(context.createGraphicsPath());
    if (!path)
        return;
    // A path and not lines: only a closed outline can be filled and has sharp corners.
    const arrow_outline outline = outlineAt(angle);
    path->beginSubpath({outline[0].x, outline[0].y});
    for (std::size_t corner = 1; corner < outline.size(); ++corner)
        path->addLine({outline[corner].x, outline[corner].y});
    path->closeSubpath();
    context.drawGraphicsPath(path, VSTGUI::CDrawContext::kPathFilled);
    context.drawGraphicsPath(path, VSTGUI::CDrawContext::kPathStroked);
}

void COVArrowArcSlider::onMouseDownEvent(VSTGUI::MouseDownEvent& event)
{
    if (is_right_click(event) || is_alt_click(event) || is_double_click(event))
    {
        reset_to_default(*this);
        return consume_press(event);
    }
    const drag_hold hold{hold_of(event.modifiers).is_fine};
    const redirected_event redirected(event, drag.press(event.mousePosition, placeOfValue(), hold));
    if (hold.is_fine) // in its fine mode the toolkit keeps the value until the mouse moves
        event.modifiers.add(VSTGUI::ModifierKey::Shift);
    CVerticalSlider::onMouseDownEvent(event);
}

void COVArrowArcSlider::onMouseMoveEvent(VSTGUI::MouseMoveEvent& event)
{
    if (!isEditing())
        return CVerticalSlider::onMouseMoveEvent(event);
    const drag_hold hold{hold_of(event.modifiers).is_fine};
    const redirected_event redirected(event, drag.move(event.mousePosition, placeOfValue(), hold));
    CVerticalSlider::onMouseMoveEvent(event);
}

/// Empty, because the base class would consume the event that scrolls the panel.
void COVArrowArcSlider::onMouseWheelEvent(VSTGUI::MouseWheelEvent&) {}

} // namespace ov1
