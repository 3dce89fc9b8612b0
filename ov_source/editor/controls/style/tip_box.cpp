#include "editor/controls/style/tip_box.h"

#include "editor/controls/style/round_box.h"

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
    draw_round_box(context, place, corner_radius, tip_grey, frame_grey);
}

VSTGUI::CRect area_of(const VSTGUI::CFrame& frame)
{
    VSTGUI::CRect area = frame.getViewSize();
    frame.getTransform().inverse().transform(area);
    return area.originize();
}

} // namespace ov1
