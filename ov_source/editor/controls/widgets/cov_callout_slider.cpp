#include "editor/controls/widgets/cov_callout_slider.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/widgets/callout_text.h"

#include <algorithm>
#include <utility>

namespace ov1
{

namespace
{

constexpr float wheel_increment = 0.03F; // of the range, for each notch
// In points.
constexpr VSTGUI::CCoord line_spacing = 2.0;
constexpr VSTGUI::CCoord gap_beside_handle = 4.0;

} // namespace

COVCalloutSlider::COVCalloutSlider(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag,
                                   std::int32_t min_pos, std::int32_t max_pos, VSTGUI::CBitmap* handle,
                                   VSTGUI::CBitmap* background, const VSTGUI::CPoint& offset, std::int32_t style)
    : CSimpleSlider(size, listener, tag, min_pos, max_pos, handle, offset, style)
    , font(style::small_font())
{
    setWheelInc(wheel_increment);
    setValueColor(style::label_text);
    setBackground(background);
    // At the bottom of the background, so that the text has the room above.
    if (handle && background)
        setOffsetHandle({0.0, background->getHeight() - handle->getHeight()});
}

void COVCalloutSlider::setFont(VSTGUI::CFontRef text_font)
{
    font = text_font;
    invalid();
}

void COVCalloutSlider::setUnitString(const std::string& text)
{
    if (std::exchange(unit, text) != text)
        invalid();
}

void COVCalloutSlider::setPrecision(std::int32_t digits)
{
    if (std::exchange(precision, digits) != digits)
        invalid();
}

void COVCalloutSlider::getValueString(std::string& out) const { out = callout_text(getValue(), precision, unit); }

void COVCalloutSlider::draw(VSTGUI::CDrawContext* context)
{
    // Replaces CSimpleSlider's drawing: the background contains the track.
    if (auto* bitmap = getDrawBackground())
        bitmap->draw(context, getViewSize());
    if (auto* handle = getHandle())
    {
        const VSTGUI::CRect place = calculateHandleRect(getValueNormalized());
        handle->draw(context, place);
        if (font)
            drawValue(*context, place);
    }
    setDirty(false);
}

void COVCalloutSlider::drawValue(VSTGUI::CDrawContext& context, const VSTGUI::CRect& handle) const
{
    std::string text;
    getValueString(text);
    context.setFont(font);
    context.setFontColor(getValueColor());
    context.setDrawMode(VSTGUI::kAntiAliasing);

    const VSTGUI::CRect& view = getViewSize();
    const VSTGUI::CCoord width = context.getStringWidth(text.c_str());
    const VSTGUI::CCoord room_above = getOffsetHandle().y;
    const VSTGUI::CCoord line_height = font->getSize() + line_spacing;
    VSTGUI::CRect place = handle;
    if (room_above >= line_height)
    {
        // Centred on the handle, and moved inwards at both ends of the track.
        place.left = std::clamp(handle.getCenter().x - width / 2.0, view.left, std::max(view.left, view.right - width));
        place.top = handle.top - line_height;
        place.setHeight(line_height);
    }
    // To the right of the handle while there is room, otherwise to its left.
    else if (handle.right + gap_beside_handle + width <= view.right)
        place.left = handle.right + gap_beside_handle;
    else
        place.left = handle.left - gap_beside_handle - width;
    place.setWidth(width);
    context.drawString(text.c_str(), place, VSTGUI::kCenterText);
}

} // namespace ov1
