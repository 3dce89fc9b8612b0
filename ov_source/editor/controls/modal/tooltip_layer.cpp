#include "editor/controls/modal/tooltip_layer.h"

#include "editor/controls/style/text_lines.h"
#include "editor/controls/style/text_measure.h"
#include "editor/controls/style/tip_box.h"
#include "editor/controls/style/view_area.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ov1
{

namespace
{

// In points. The gaps keep the text clear of the mouse pointer's arrow.
constexpr VSTGUI::CCoord widest_text = 300.0;
const VSTGUI::CPoint padding(9.0, 6.0);
const VSTGUI::CPoint below_pointer(12.0, 20.0);
constexpr VSTGUI::CCoord above_pointer = 8.0;

/// Empty for a view without a tooltip.
std::string tooltip_of(const VSTGUI::CView& view)
{
    std::uint32_t size = 0;
    if (!view.getAttributeSize(VSTGUI::kCViewTooltipAttribute, size) || size == 0)
        return {};
    std::string text(size, '\0');
    if (!view.getAttribute(VSTGUI::kCViewTooltipAttribute, size, text.data(), size))
        return {};
    return text.c_str(); // the attribute includes the terminating 0
}

} // namespace

VSTGUI::CRect tooltip_place(const VSTGUI::CPoint& mouse, const VSTGUI::CPoint& size, const VSTGUI::CRect& area)
{
    VSTGUI::CPoint corner = mouse + below_pointer;
    if (corner.y + size.y > area.bottom)
        corner.y = mouse.y - above_pointer - size.y;
    // Left and top edge win where the area is too small.
    corner.x = std::max(std::min(corner.x, area.right - size.x), area.left);
    corner.y = std::max(corner.y, area.top);
    return {VSTGUI::CPoint(std::floor(corner.x), std::floor(corner.y)), size};
}

tooltip_layer::tooltip_layer(VSTGUI::CFrame& frame, std::uint32_t delay_ms)
    : frame(frame)
    , delay_ms(delay_ms)
{
    frame.registerMouseObserver(this);
}

tooltip_layer::~tooltip_layer()
{
    hide();
    frame.unregisterMouseObserver(this);
}

void tooltip_layer::idle(std::uint64_t now_ms)
{
    // Mouse events carry no time: the first call after one starts the delay.
    if (!rests_since)
        rests_since = now_ms;
    if (may_show && owner && now_ms - *rests_since >= delay_ms)
        show();
}

void tooltip_layer::onMouseEntered(VSTGUI::CView* view, VSTGUI::CFrame*)
{
    // A control's enter event follows that of its container: the innermost view with a text wins.
    if (tooltip_of(*view).empty())
        return;
    hide();
    owner = view;
    may_show = true;
    rests_since.reset();
}

void tooltip_layer::onMouseExited(VSTGUI::CView* view, VSTGUI::CFrame*)
{
    if (owner.get() != view)
        return;
    hide();
    owner = nullptr;
}

void tooltip_layer::onMouseEvent(VSTGUI::MouseEvent& event, VSTGUI::CFrame*)
{
    const bool pressed = event.type == VSTGUI::EventType::MouseDown;
    // An event without movement must not restart the delay.
    const bool moved = event.type == VSTGUI::EventType::MouseMove && event.mousePosition != mouse;
    if (!moved && !pressed)
        return;
    hide();
    mouse = event.mousePosition;
    // No tooltip after a press or during a drag, until the mouse moves without a button.
    may_show = !pressed && event.buttonState.empty();
    rests_since.reset();
}

void tooltip_layer::show()
{
    may_show = false; // once for each rest
    const std::string text = tooltip_of(*owner);
    if (text.empty() || frame.getModalView())
        return;
    tip =
        VSTGUI::makeOwned<tip_view>(text_lines(text, widest_text, measure_of(font)), font, padding, VSTGUI::kLeftText);
    tip->setViewSize(tooltip_place(mouse, tip->getViewSize().getSize(), area_of(frame)));
    tip->remember(); // for the frame, which takes over a reference
    frame.addView(tip);
}

void tooltip_layer::hide()
{
    if (const auto gone = std::exchange(tip, nullptr); gone && gone->isAttached())
        frame.removeView(gone);
}

} // namespace ov1
