#include "editor/controls/style/tip_box.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/round_box.h"

namespace ov1
{

namespace
{

constexpr VSTGUI::CCoord corner_radius = 4.0;

} // namespace

void draw_tip_box(VSTGUI::CDrawContext& context, const VSTGUI::CRect& place)
{
    draw_round_box(context, place, corner_radius, style::tip, style::tip_frame);
}

VSTGUI::CRect area_of(const VSTGUI::CFrame& frame)
{
    VSTGUI::CRect area = frame.getViewSize();
    frame.getTransform().inverse().transform(area);
    return area.originize();
}

} // namespace ov1
