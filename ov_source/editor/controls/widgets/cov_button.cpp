#include "editor/controls/widgets/cov_button.h"

#include "editor/controls/style/editor_style.h"

#include <cmath>

namespace ov1
{

namespace
{

constexpr float disabled_opacity = 0.35F;

/// Draws the upper or the lower half of a bitmap.
void draw_half(VSTGUI::CDrawContext* context, VSTGUI::CBitmap& bitmap, const VSTGUI::CRect& view, bool lower,
               float alpha)
{
    const VSTGUI::CPoint half(bitmap.getWidth(), bitmap.getHeight() / 2.0);
    const VSTGUI::CPoint from(0.0, lower ? half.y : 0.0);
    bitmap.draw(context, VSTGUI::CRect(view.getTopLeft(), half), from, alpha);
}

/// Draws one frame of a sheet of 2 x 2, centred in the view on whole points.
void draw_frame(VSTGUI::CDrawContext* context, VSTGUI::CBitmap& sheet, const VSTGUI::CRect& view, int column, int row,
                float alpha)
{
    const VSTGUI::CPoint frame(sheet.getWidth() / 2.0, sheet.getHeight() / 2.0);
    const VSTGUI::CPoint corner(std::floor(view.getCenter().x - frame.x / 2.0 + 0.5),
                                std::floor(view.getCenter().y - frame.y / 2.0 + 0.5));
    sheet.draw(context, VSTGUI::CRect(corner, frame), VSTGUI::CPoint(column * frame.x, row * frame.y), alpha);
}

} // namespace

COVButton::COVButton(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag, Style style,
                     VSTGUI::UTF8StringPtr title)
    : CTextButton(size, listener, tag, title, style)
{
    setTransparency(true);
    setWantsFocus(false); // otherwise Return would press the button that was clicked last
    // Otherwise the toolkit fills the button with gradients of its own.
    setGradient(nullptr);
    setGradientHighlighted(nullptr);
    CTextButton::setTextColor(style::button_text);
    setTextColorHighlighted(VSTGUI::kWhiteCColor);
}

void COVButton::setValue(float new_value)
{
    // Bound values are set again and again; only another value needs a redraw.
    if (new_value == getValue())
        return;
    CTextButton::setValue(new_value);
    on = getValue() > 0.5F;
    invalid();
}

void COVButton::setIcon(VSTGUI::CBitmap* sheet)
{
    frames = sheet;
    invalid();
}

float COVButton::opacity() const { return getMouseEnabled() ? 1.0F : disabled_opacity; }

void COVButton::draw(VSTGUI::CDrawContext* context)
{
    CTextButton::draw(context);
    if (auto* bitmap = getDrawBackground())
        draw_half(context, *bitmap, getViewSize(), pressed, opacity());
    if (auto* sheet = iconToDraw())
        draw_frame(context, *sheet, getViewSize(), hovered ? 1 : 0, on ? 1 : 0, opacity());
    setDirty(false);
}

void COVButton::onMouseDownEvent(VSTGUI::MouseDownEvent& event)
{
    CTextButton::onMouseDownEvent(event);
    // The base class consumes only the presses that it accepts.
    if (!event.consumed)
        return;
    pressed = true;
    invalid();
}

void COVButton::onMouseUpEvent(VSTGUI::MouseUpEvent& event)
{
    const auto alive = VSTGUI::shared(this); // the listener may close the window
    CTextButton::onMouseUpEvent(event);
    pressed = false;
    on = getValue() > 0.5F;
    invalid();
}

void COVButton::onMouseEnterEvent(VSTGUI::MouseEnterEvent& event)
{
    CTextButton::onMouseEnterEvent(event);
    setHovered(true);
}

void COVButton::onMouseExitEvent(VSTGUI::MouseExitEvent& event)
{
    CTextButton::onMouseExitEvent(event);
    setHovered(false);
}

void COVButton::setHovered(bool over)
{
    hovered = over;
    invalid();
}

void COVButton::onMouseCancelEvent(VSTGUI::MouseCancelEvent& event)
{
    CTextButton::onMouseCancelEvent(event);
    pressed = false;
    invalid();
}

} // namespace ov1
