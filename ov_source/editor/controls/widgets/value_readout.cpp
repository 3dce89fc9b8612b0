#include "editor/controls/widgets/value_readout.h"

#include "editor/controls/style/tip_box.h"
#include "editor/controls/style/view_area.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace ov1
{

namespace
{

const VSTGUI::CPoint padding(8.0, 3.0);
constexpr VSTGUI::CCoord gap = 13.0; // from the handle's middle

} // namespace

VSTGUI::CRect readout_place(const VSTGUI::CPoint& handle, const VSTGUI::CPoint& size, const VSTGUI::CRect& area)
{
    VSTGUI::CPoint corner(handle.x - size.x / 2.0, handle.y - gap - size.y);
    if (corner.y < area.top)
        corner.y = handle.y + gap;
    corner.x = std::max(std::min(corner.x, area.right - size.x), area.left);
    corner.y = std::max(std::min(corner.y, area.bottom - size.y), area.top);
    return {VSTGUI::CPoint(std::floor(corner.x), std::floor(corner.y)), size};
}

value_readout::value_readout(VSTGUI::CFrame& frame)
    : frame(frame)
{
}

value_readout::~value_readout() { hide(); }

void value_readout::show(const std::string& new_text, const VSTGUI::CPoint& handle)
{
    auto made = VSTGUI::makeOwned<tip_view>(std::vector{new_text}, font, padding, VSTGUI::kCenterText);
    const VSTGUI::CRect place = readout_place(handle, made->getViewSize().getSize(), area_of(frame));
    // Each movement of a drag comes here; an unchanged bubble stays.
    if (bubble && text == new_text && place == get_place())
        return;
    hide();
    text = new_text;
    made->setViewSize(place);
    bubble = made;
    bubble->remember(); // for the frame, which takes over a reference
    frame.addView(bubble);
}

void value_readout::hide()
{
    text.clear();
    // The frame may have removed the bubble already, when it was closed.
    if (const auto gone = std::exchange(bubble, nullptr); gone && gone->isAttached())
        frame.removeView(gone);
}

VSTGUI::CRect value_readout::get_place() const { return bubble ? bubble->getViewSize() : VSTGUI::CRect(); }

} // namespace ov1
