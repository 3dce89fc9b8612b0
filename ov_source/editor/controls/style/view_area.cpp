#include "editor/controls/style/view_area.h"

namespace ov1
{

VSTGUI::CRect area_of(const VSTGUI::CFrame& frame)
{
    VSTGUI::CRect area = frame.getViewSize();
    // The frame's size includes the zoom; the inverse transform removes it.
    frame.getTransform().inverse().transform(area);
    return area.originize();
}

void place_view(VSTGUI::CView& view, const VSTGUI::CRect& place)
{
    view.setViewSize(place);
    view.setMouseableArea(place);
}

void fill_background(VSTGUI::CDrawContext& context, const VSTGUI::CView& container, const VSTGUI::CColor& colour)
{
    VSTGUI::CRect whole = container.getViewSize();
    whole.originize();
    context.setFillColor(colour);
    context.drawRect(whole, VSTGUI::kDrawFilled);
}

} // namespace ov1
