#include "editor/tip_box.h"

namespace ov1
{

namespace
{

constexpr VSTGUI::CCoord corner_radius = 4.0;
const VSTGUI::CColor tip_grey(28, 28, 28);
const VSTGUI::CColor frame_grey(84, 84, 84);

} // namespace

void draw_tip_box(VSTGUI::CDrawContext& context, const VSTGUI::CRect& place)
{
    VSTGUI::CRect box = place;
    box.inset(0.5, 0.5);
    const auto path = VSTGUI::owned(context.createRoundRectGraphicsPath(box, corner_radius));
    if (!path)
        return;
    context.setDrawMode(VSTGUI::kAntiAliasing | VSTGUI::kNonIntegralMode);
    context.setLineStyle(VSTGUI::kLineSolid);
    context.setLineWidth(1.0);
    context.setFillColor(tip_grey);
    context.setFrameColor(frame_grey);
    context.drawGraphicsPath(path, VSTGUI::CDrawContext::kPathFilled);
    context.drawGraphicsPath(path, VSTGUI::CDrawContext::kPathStroked);
}

VSTGUI::CRect area_of(const VSTGUI::CFrame& frame)
{
    VSTGUI::CRect area = frame.getViewSize();
    frame.getTransform().inverse().transform(area);
    return area.originize();
}

} // namespace ov1
