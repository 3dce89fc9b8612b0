#include "editor/cov_arrow_arc_slider.h"

#include "editor/reset_click.h"

#include <numbers>

namespace ov1
{

namespace
{

constexpr double radians_per_degree = std::numbers::pi / 180.0;
constexpr VSTGUI::CCoord frame_points = 2.0;
const VSTGUI::CColor arrow_grey(176, 176, 176);

} // namespace

COVArrowArcSlider::COVArrowArcSlider(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag,
                                     std::int32_t min_pos, std::int32_t max_pos, VSTGUI::CBitmap* background)
    : CVerticalSlider(size, listener, tag, min_pos, max_pos, nullptr, background)
    , angles(arc_angles_of(size.getWidth(), size.getCenter().y, min_pos, max_pos))
{
    setTransparency(true);
    setSliderMode(VSTGUI::CSliderMode::FreeClick);
    // The toolkit counts a drag from the view's edge, and half the size, 1, of the handle that is not there.
    setOffsetHandle({0.0, min_pos - size.top + 0.5});
    setFrameColor(VSTGUI::kBlackCColor);
    setBackColor(arrow_grey);
    setFrameWidth(frame_points);
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
    if (auto* picture = getDrawBackground())
        picture->draw(context, getViewSize());
    context->setDrawMode(VSTGUI::kAntiAliasing | VSTGUI::kNonIntegralMode);
    context->setLineStyle(VSTGUI::kLineSolid);
    context->setLineWidth(getFrameWidth());
    context->setFrameColor(getFrameColor());
    context->setFillColor(getBackColor());
    const double angle = angles.at(getValueNormalized());
    draw_arrow(*context, angle - spread / 2.0);
    if (spread > 0.0)
        draw_arrow(*context, angle + spread / 2.0);
    setDirty(false);
}

void COVArrowArcSlider::draw_arrow(VSTGUI::CDrawContext& context, double angle) const
{
    const auto path = VSTGUI::owned(context.createGraphicsPath());
    if (!path)
        return;
    const VSTGUI::CRect& view = getViewSize();
    const arrow_outline outline =
        arrow_outline_of({view.left, view.top, view.right, view.bottom, getFrameWidth(), orientation}, angle);
    path->beginSubpath({outline[0].x, outline[0].y});
    for (std::size_t corner = 1; corner < outline.size(); ++corner)
        path->addLine({outline[corner].x, outline[corner].y});
    path->closeSubpath();
    context.drawGraphicsPath(path, VSTGUI::CDrawContext::kPathFilled);
    context.drawGraphicsPath(path, VSTGUI::CDrawContext::kPathStroked);
}

void COVArrowArcSlider::onMouseDownEvent(VSTGUI::MouseDownEvent& event)
{
    if (!is_right_click(event) && !is_alt_click(event))
        return CVerticalSlider::onMouseDownEvent(event);
    reset_to_default(*this);
    consume_press(event);
}

void COVArrowArcSlider::onMouseWheelEvent(VSTGUI::MouseWheelEvent&) {}

} // namespace ov1
