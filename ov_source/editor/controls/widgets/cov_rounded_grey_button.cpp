#include "editor/controls/widgets/cov_rounded_grey_button.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/style/round_box.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ov1
{

namespace
{

// In points.
constexpr VSTGUI::CCoord corner_radius = 4.0;
constexpr VSTGUI::CCoord margin = 8.0;
constexpr VSTGUI::CCoord icon_gap = 6.0;

} // namespace

COVRoundedGreyButton::COVRoundedGreyButton(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener,
                                           std::int32_t tag, VSTGUI::UTF8StringPtr title, Style style)
    : COVButton(size, listener, tag, style, title)
{
    setFont(style::text_font());
}

VSTGUI::CPoint COVRoundedGreyButton::scaled_icon::size() const
{
    return bitmap ? VSTGUI::CPoint(bitmap->getWidth() * scale, bitmap->getHeight() * scale) : VSTGUI::CPoint();
}

void COVRoundedGreyButton::setLefttIcon(VSTGUI::SharedPointer<VSTGUI::CBitmap> icon, float scale)
{
    left_icon = {std::move(icon), scale};
    invalid();
}

void COVRoundedGreyButton::setRightIcon(VSTGUI::SharedPointer<VSTGUI::CBitmap> icon, float scale)
{
    right_icon = {std::move(icon), scale};
    invalid();
}

void COVRoundedGreyButton::setTextColor(const VSTGUI::CColor& color)
{
    COVButton::setTextColor(color);
    setTextColorHighlighted(color); // the box shows the press, not the text
}

void COVRoundedGreyButton::draw(VSTGUI::CDrawContext* context)
{
    context->saveGlobalState();
    // Box, icons and title are dimmed alike.
    context->setGlobalAlpha(context->getGlobalAlpha() * opacity());
    draw_round_box(*context, getViewSize(), corner_radius,
                   isPressed()   ? style::button_pressed
                   : isHovered() ? style::button_hovered
                                 : style::button,
                   isOn() ? style::button_on_frame : style::button_frame);
    // What remains between the icons is the title's.
    VSTGUI::CRect room = getViewSize();
    room.inset(margin, 0.0);
    if (left_icon.bitmap)
    {
        drawIcon(*context, left_icon, room.left);
        room.left += left_icon.size().x + icon_gap;
    }
    if (right_icon.bitmap)
    {
        room.right -= right_icon.size().x;
        drawIcon(*context, right_icon, room.right);
        room.right -= icon_gap;
    }
    drawTitle(*context, room);
    context->restoreGlobalState();
    setDirty(false);
}

void COVRoundedGreyButton::drawIcon(VSTGUI::CDrawContext& context, const scaled_icon& icon, VSTGUI::CCoord left) const
{
    const VSTGUI::CCoord top = std::floor(getViewSize().getCenter().y - icon.size().y / 2.0 + 0.5);
    // A bitmap draws at its own size only; the transform scales and places it.
    const VSTGUI::CDrawContext::Transform transform(
        context, VSTGUI::CGraphicsTransform().scale(icon.scale, icon.scale).translate(left, top));
    icon.bitmap->draw(&context, VSTGUI::CRect({0.0, 0.0}, icon.bitmap->getSize()));
}

void COVRoundedGreyButton::drawTitle(VSTGUI::CDrawContext& context, const VSTGUI::CRect& room) const
{
    if (getTitle().empty() || room.getWidth() <= 0.0)
        return;
    // A long title ends in an ellipsis: cut letters would look like an error.
    const auto text = VSTGUI::CDrawMethods::createTruncatedText(VSTGUI::CDrawMethods::kTextTruncateTail, getTitle(),
                                                                getFont(), room.getWidth());
    context.setFont(getFont());
    context.setFontColor(getTextColor());
    context.drawString(text.getPlatformString(), room, getTextAlignment());
}

} // namespace ov1
