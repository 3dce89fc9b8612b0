#include "editor/controls/style/round_box.h"

namespace ov1
{

void draw_round_box(VSTGUI::CDrawContext& context, const VSTGUI::CRect& place, VSTGUI::CCoord corner_radius,
                    const VSTGUI::CColor& fill, const VSTGUI::CColor& frame)
{
    VSTGUI::CRect box = place;
    // The line is centred on the path: half of its width would lie outside.
    box.inset(0.5, 0.5);
    const auto path = VSTGUI::owned(context.createRoundRectGraphicsPath(box, corner_radius));
    if (!path)
        return;
    context.setDrawMode(VSTGUI::kAntiAliasing | VSTGUI::kNonIntegralMode);
    context.setLineStyle(VSTGUI::kLineSolid);
    context.setLineWidth(1.0);
    context.setFillColor(fill);
    context.setFrameColor(frame);
    context.drawGraphicsPath(path, VSTGUI::CDrawContext::kPathFilled);
    context.drawGraphicsPath(path, VSTGUI::CDrawContext::kPathStroked);
}

} // namespace ov1
