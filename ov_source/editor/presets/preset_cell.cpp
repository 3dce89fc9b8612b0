#include "editor/presets/preset_cell.h"

#include "editor/controls/style/bitmap_pixels.h"

#include "vstgui/lib/cdrawcontext.h"
#include "vstgui/lib/cdrawmethods.h"
#include "vstgui/lib/events.h"
#include "vstgui/lib/platform/iplatformbitmap.h"

#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr CCoord frame_width = 2;

/// Null for an empty picture. scale: pixels per point, so that each pixel of the picture covers one of the screen.
SharedPointer<CBitmap> to_bitmap(const display_picture& picture, double scale)
{
    if (picture.is_empty())
        return nullptr;
    auto bitmap = makeOwned<CBitmap>(picture.width, picture.height);
    bitmap->getPlatformBitmap()->setScaleFactor(scale);
    set_pixels(*bitmap, picture.pixels);
    return bitmap;
}

} // namespace

preset_cell::preset_cell(std::string name, bool is_current, std::function<void(bool over)> on_hover,
                         std::function<void()> on_choice)
    : CView(CRect(0, 0, preset_picture_width, preset_cell_height))
    , name(std::move(name))
    , is_current(is_current)
    , on_hover(std::move(on_hover))
    , on_choice(std::move(on_choice))
{
}

void preset_cell::set_thumbnail(preset_thumbnail made, double screen_scale)
{
    picture = to_bitmap(made.picture, screen_scale);
    renderer = std::move(made.renderer);
    invalid();
    // The pointer was here before the grade was ready: the preview can show it from this moment.
    if (is_hovered)
        on_hover(true);
}

void preset_cell::draw(CDrawContext* context)
{
    CRect place = getViewSize();
    place.bottom = place.top + preset_picture_height;
    context->setDrawMode(kAntiAliasing);
    context->setFillColor(style::sunken);
    context->drawRect(place, kDrawFilled);
    if (picture)
    {
        // A picture of another aspect ratio leaves bars on two sides.
        CRect centred(CPoint(0, 0), picture->getSize());
        centred.centerInside(place);
        picture->draw(context, centred.makeIntegral());
    }
    if (is_hovered || is_current)
    {
        context->setFrameColor(is_hovered ? style::bright_text : style::accent);
        context->setLineWidth(frame_width);
        CRect frame = place;
        frame.inset(frame_width / 2, frame_width / 2);
        context->drawRect(frame, kDrawStroked);
    }
    CRect text = getViewSize();
    text.top = place.bottom + 2;
    const auto shown =
        CDrawMethods::createTruncatedText(CDrawMethods::kTextTruncateTail, name.c_str(), font, text.getWidth());
    context->setFont(font);
    context->setFontColor(is_current ? style::accent : style::normal_text);
    context->drawString(shown.empty() ? UTF8String(name.c_str()) : shown, text, kCenterText);
    setDirty(false);
}

void preset_cell::onMouseDownEvent(MouseDownEvent& event)
{
    if (!event.buttonState.isLeft())
        return;
    event.consumed = true;
    // The cell may be gone when the button is released.
    event.ignoreFollowUpMoveAndUpEvents(true);
    const auto choose = on_choice; // a copy: it may delete this cell
    choose();
}

void preset_cell::set_hovered(bool over)
{
    if (std::exchange(is_hovered, over) == over)
        return;
    invalid();
    on_hover(over);
}

void preset_cell::onMouseEnterEvent(MouseEnterEvent& event)
{
    set_hovered(true);
    event.consumed = true;
}

void preset_cell::onMouseExitEvent(MouseExitEvent& event)
{
    set_hovered(false);
    event.consumed = true;
}

} // namespace ov1
