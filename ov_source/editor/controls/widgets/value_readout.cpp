#include "editor/controls/widgets/value_readout.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/tip_box.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ov1
{

namespace
{

constexpr VSTGUI::CCoord line_height = 16.0;
const VSTGUI::CPoint padding(8.0, 3.0);
constexpr VSTGUI::CCoord gap = 13.0; ///< from the handle's middle

class bubble_view : public VSTGUI::CView
{
public:
    bubble_view(const VSTGUI::CRect& size, const std::string& text, VSTGUI::CFontRef font)
        : CView(size)
        , text(text)
        , font(font)
    {
        setTransparency(true);
        setMouseEnabled(false);
    }

    void draw(VSTGUI::CDrawContext* context) override
    {
        draw_tip_box(*context, getViewSize());
        context->setFont(font);
        context->setFontColor(style::tip_text);
        context->drawString(text.c_str(), getViewSize(), VSTGUI::kCenterText);
        setDirty(false);
    }

private:
    std::string text;
    VSTGUI::SharedPointer<VSTGUI::CFontDesc> font;
};

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
    , font(style::text_font())
{
}

value_readout::~value_readout() { hide(); }

void value_readout::show(const std::string& new_text, const VSTGUI::CPoint& handle)
{
    const VSTGUI::CPoint size(std::ceil(measure_of(font)(new_text)) + 2.0 * padding.x, line_height + 2.0 * padding.y);
    const VSTGUI::CRect place = readout_place(handle, size, area_of(frame));
    if (bubble && text == new_text && place == get_place())
        return;
    hide();
    text = new_text;
    bubble = VSTGUI::makeOwned<bubble_view>(place, text, font);
    bubble->remember(); // for the frame, which takes over a reference
    frame.addView(bubble);
}

void value_readout::hide()
{
    text.clear();
    if (const auto gone = std::exchange(bubble, nullptr); gone && gone->isAttached())
        frame.removeView(gone);
}

VSTGUI::CRect value_readout::get_place() const { return bubble ? bubble->getViewSize() : VSTGUI::CRect(); }

} // namespace ov1
