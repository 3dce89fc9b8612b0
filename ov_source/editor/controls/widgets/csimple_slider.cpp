#include "editor/controls/widgets/csimple_slider.h"

#include "editor/controls/style/editor_style.h"
#include "editor/controls/widgets/reset_click.h"

#include <utility>

namespace ov1
{

namespace
{

constexpr VSTGUI::CCoord center_line_width = 2.0;
constexpr VSTGUI::CCoord center_line_overhang = 2.0;
const VSTGUI::CPoint track_inset(8.0, 5.0); // points, horizontally and vertically

/// Whether the partner moves along.
bool is_ganged(const VSTGUI::MouseEvent& event)
{
    return event.buttonState.has(VSTGUI::MouseButton::Left) && event.modifiers.has(VSTGUI::ModifierKey::Control);
}

void draw_line_through_center(VSTGUI::CDrawContext& context, const VSTGUI::CRect& view)
{
    const VSTGUI::CCoord x = view.getCenter().x;
    context.setLineStyle(VSTGUI::kLineSolid);
    context.setLineWidth(center_line_width);
    context.setFrameColor(style::centre_line);
    context.drawLine(VSTGUI::CPoint(x, view.top - center_line_overhang),
                     VSTGUI::CPoint(x, view.bottom + center_line_overhang));
}

} // namespace

CSimpleSlider::CSimpleSlider(const VSTGUI::CRect& size, VSTGUI::IControlListener* listener, std::int32_t tag,
                             std::int32_t min_pos, std::int32_t max_pos, VSTGUI::CBitmap* handle,
                             const VSTGUI::CPoint& offset, std::int32_t style)
    : CHorizontalSlider(size, listener, tag, min_pos, max_pos, handle, nullptr, offset, Styles(style))
{
    setTransparency(true);
    // Only a press on the handle begins a drag.
    setSliderMode(VSTGUI::CSliderMode::Touch);
}

void CSimpleSlider::setDrawCenterLine(bool on)
{
    if (std::exchange(draws_center_line, on) != on)
        invalid();
}

void CSimpleSlider::draw(VSTGUI::CDrawContext* context)
{
    context->setDrawMode(VSTGUI::kAliasing);
    if (draws_center_line)
        draw_line_through_center(*context, getViewSize());
    VSTGUI::CRect track = getViewSize();
    track.inset(track_inset.x, track_inset.y);
    context->setFillColor(VSTGUI::kBlackCColor);
    context->drawRect(track, VSTGUI::kDrawFilled);
    // The handle, above the track.
    CHorizontalSlider::draw(context);
}

void CSimpleSlider::onMouseDownEvent(VSTGUI::MouseDownEvent& event)
{
    if (is_alt_click(event) || is_double_click(event) || (resets_on_right_click && is_right_click(event)))
    {
        reset_to_default(*this);
        return consume_press(event);
    }
    const float before = getValue();
    pressHandle(event);
    if (isEditing() && is_ganged(event))
        beginGang(before);
}

void CSimpleSlider::pressHandle(VSTGUI::MouseDownEvent& event)
{
    grip = event.mousePosition.x - placeOfValue();
    // The toolkit rounds the handle's position to whole points and drags from there; the exact value is kept here.
    beyond_whole_point = placeOfValue() - calculateHandleRect(getValueNormalized()).left;
    drag.press(event.mousePosition, event.mousePosition, {hold_of(event.modifiers).is_fine});
    const redirected_event redirected(event, event.mousePosition);
    event.modifiers.add(VSTGUI::ModifierKey::Shift); // in its fine mode the toolkit keeps the value until a move
    CHorizontalSlider::onMouseDownEvent(event);
}

void CSimpleSlider::dragHandle(VSTGUI::MouseMoveEvent& event)
{
    const VSTGUI::CPoint gripped(placeOfValue() + grip, event.mousePosition.y);
    VSTGUI::CPoint place = drag.move(event.mousePosition, gripped, {hold_of(event.modifiers).is_fine});
    place.x += beyond_whole_point;
    const redirected_event redirected(event, place);
    CHorizontalSlider::onMouseMoveEvent(event);
}

/// The handle's left edge, exact where the toolkit's own is rounded.
VSTGUI::CCoord CSimpleSlider::placeOfValue() const
{
    const VSTGUI::CCoord least = calculateHandleRect(0.0F).left, most = calculateHandleRect(1.0F).left;
    return least + (most - least) * getValueNormalized();
}

void CSimpleSlider::beginGang(float value_before)
{
    if (!partner || partner->isEditing())
        return;
    ganged = partner; // for this drag, even if another partner is set meanwhile
    ganged_value_at_press = ganged->getValue();
    ganged->beginEdit();
    dragPartner(getValue() - value_before);
}

void CSimpleSlider::onMouseMoveEvent(VSTGUI::MouseMoveEvent& event)
{
    const float before = getValue();
    if (isEditing())
        dragHandle(event);
    else
        CHorizontalSlider::onMouseMoveEvent(event);
    if (is_ganged(event))
        dragPartner(getValue() - before);
}

void CSimpleSlider::dragPartner(float change)
{
    if (!ganged || change == 0.0F)
        return;
    // The change counts and not the value: each slider keeps its distance from the other one.
    ganged->setValue(ganged->getValue() + change);
    ganged->valueChanged();
    ganged->invalid();
}

void CSimpleSlider::onMouseUpEvent(VSTGUI::MouseUpEvent& event)
{
    CHorizontalSlider::onMouseUpEvent(event);
    endGang();
}

VSTGUI::CMouseEventResult CSimpleSlider::onMouseCancel()
{
    const auto result = CHorizontalSlider::onMouseCancel();
    if (ganged)
        // As a change, which tells the partner's listener of the restored value.
        dragPartner(ganged_value_at_press - ganged->getValue());
    endGang();
    return result;
}

void CSimpleSlider::endGang()
{
    if (auto* other = std::exchange(ganged, nullptr))
        other->endEdit();
}

void CSimpleSlider::onMouseWheelEvent(VSTGUI::MouseWheelEvent& event)
{
    if (!accepts_wheel)
        return;
    // The toolkit's horizontal sliders use deltaX only, and a positive one lowers the value.
    const auto sideways = event.deltaX;
    if (sideways == 0.0)
        event.deltaX = -event.deltaY;
    CHorizontalSlider::onMouseWheelEvent(event);
    event.deltaX = sideways;
}

} // namespace ov1
