#include "editor/controls/modal/tooltip_layer.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/tip_box.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace ov1
{

namespace
{

constexpr VSTGUI::CCoord widest_text = 300.0;
constexpr VSTGUI::CCoord line_height = 16.0;
const VSTGUI::CPoint padding(9.0, 6.0);
const VSTGUI::CPoint below_pointer(12.0, 20.0);
constexpr VSTGUI::CCoord above_pointer = 8.0;

std::string tooltip_of(const VSTGUI::CView& view)
{
    std::uint32_t size = 0;
    if (!view.getAttributeSize(VSTGUI::kCViewTooltipAttribute, size) || size == 0)
        return {};
    std::string text(size, '\0');
    if (!view.getAttribute(VSTGUI::kCViewTooltipAttribute, size, text.data(), size))
        return {};
    return text.c_str(); // without what follows its terminating 0
}

class tip_view : public VSTGUI::CView
{
public:
    tip_view(const VSTGUI::CRect& size, std::vector<std::string> lines, VSTGUI::CFontRef font)
        : CView(size)
        , lines(std::move(lines))
        , font(font)
    {
        setTransparency(true);
        setMouseEnabled(false);
    }

    void draw(VSTGUI::CDrawContext* context) override
    {
        draw_tip_box(*context, getViewSize());
        VSTGUI::CRect row = getViewSize();
        row.inset(padding.x, padding.y);
        row.setHeight(line_height);
        context->setFont(font);
        context->setFontColor(style::tip_text);
        for (const std::string& line : lines)
        {
            context->drawString(line.c_str(), row, VSTGUI::kLeftText);
            row.offset(0.0, line_height);
        }
        setDirty(false);
    }

private:
    std::vector<std::string> lines;
    VSTGUI::SharedPointer<VSTGUI::CFontDesc> font;
};

VSTGUI::CPoint size_of(const std::vector<std::string>& lines, const line_width& width)
{
    double widest = 0.0;
    for (const std::string& line : lines)
        widest = std::max(widest, width(line));
    return {std::ceil(widest) + 2.0 * padding.x, static_cast<double>(lines.size()) * line_height + 2.0 * padding.y};
}

} // namespace

VSTGUI::CRect tooltip_place(const VSTGUI::CPoint& mouse, const VSTGUI::CPoint& size, const VSTGUI::CRect& area)
{
    VSTGUI::CPoint corner = mouse + below_pointer;
    if (corner.y + size.y > area.bottom)
        corner.y = mouse.y - above_pointer - size.y;
    corner.x = std::max(std::min(corner.x, area.right - size.x), area.left);
    corner.y = std::max(corner.y, area.top);
    return {VSTGUI::CPoint(std::floor(corner.x), std::floor(corner.y)), size};
}

tooltip_layer::tooltip_layer(VSTGUI::CFrame& frame, std::uint32_t delay_ms)
    : frame(frame)
    , delay_ms(delay_ms)
    , font(style::text_font())
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
    if (!rests_since)
        rests_since = now_ms;
    if (may_show && owner && now_ms - *rests_since >= delay_ms)
        show();
}

void tooltip_layer::onMouseEntered(VSTGUI::CView* view, VSTGUI::CFrame*)
{
    // Entering a control is told after entering what holds it: the innermost text counts.
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
    const bool moved = event.type == VSTGUI::EventType::MouseMove && event.mousePosition != mouse;
    if (!moved && !pressed)
        return;
    hide();
    mouse = event.mousePosition;
    // After a press the user knows what the control does, until the mouse moves freely again.
    may_show = !pressed && event.buttonState.empty();
    rests_since.reset();
}

void tooltip_layer::show()
{
    may_show = false;
    const std::string text = tooltip_of(*owner);
    if (text.empty() || frame.getModalView())
        return;
    const line_width width = measure_of(font);
    std::vector<std::string> lines = text_lines(text, widest_text, width);
    const VSTGUI::CRect place = tooltip_place(mouse, size_of(lines, width), area_of(frame));
    tip = VSTGUI::makeOwned<tip_view>(place, std::move(lines), font);
    tip->remember(); // for the frame, which takes over a reference
    frame.addView(tip);
}

void tooltip_layer::hide()
{
    if (const auto gone = std::exchange(tip, nullptr); gone && gone->isAttached())
        frame.removeView(gone);
}

} // namespace ov1
