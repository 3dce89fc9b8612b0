#include "editor/preview/preview_view.h"

#include "editor/controls/style/editor_style.h"
#include "editor/preview/display_grade.h"

#include "vstgui/lib/cdrawcontext.h"
#include "vstgui/lib/cframe.h"
#include "vstgui/lib/cgraphicspath.h"
#include "vstgui/lib/events.h"
#include "vstgui/lib/platform/iplatformbitmap.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ov1
{

using namespace VSTGUI;

namespace
{

// In points.
constexpr CCoord line_grip_radius = 7;
constexpr CCoord line_reach = 6; // a press at this distance still takes the line

/// The smallest rectangle of whole screen pixels around r, in points.
CRect whole_pixels(const CRect& r, double scale)
{
    return {std::floor(r.left * scale) / scale, std::floor(r.top * scale) / scale, std::ceil(r.right * scale) / scale,
            std::ceil(r.bottom * scale) / scale};
}

} // namespace

preview_view::preview_view(const CRect& size)
    : CView(size)
{
}

void preview_view::update(const image& frame)
{
    // Converted here, on the caller's thread: the frame is only valid during the call.
    const std::scoped_lock guard(arrival_mutex);
    convert_to_display(frame, after.arrived);
    after.has_arrived = true;
}

void preview_view::update_source(const image& frame)
{
    const std::scoped_lock guard(arrival_mutex);
    convert_to_display(frame, before.arrived);
    before.has_arrived = true;
}

bool preview_view::take_arrived(layer& taken)
{
    const std::scoped_lock guard(arrival_mutex);
    if (!std::exchange(taken.has_arrived, false))
        return false;
    std::swap(taken.picture, taken.arrived); // the next frame reuses the old storage
    taken.drawn_zoom = 0;                    // no zoom: the bitmap is outdated
    return true;
}

void preview_view::idle()
{
    const bool before_came = take_arrived(before), after_came = take_arrived(after);
    if (!before_came && !after_came)
        return;
    // The source may arrive first; both have the same size once both are there.
    const display_picture& picture = after.picture.is_empty() ? before.picture : after.picture;
    if (scroller)
        scroller->setPictureSize(picture.width, picture.height);
    invalid();
}

void preview_view::show_trial(std::shared_ptr<const row_renderer> renderer)
{
    // From the picture's codes and not from the frame, which is only valid during update.
    trial.picture = renderer ? grade_display(before.picture, *renderer) : display_picture{};
    trial.drawn_zoom = 0;
    invalid();
}

void preview_view::set_comparison(comparison new_mode)
{
    if (std::exchange(mode, new_mode) != new_mode)
        invalid();
}

void preview_view::set_split(double place)
{
    const double limited = std::clamp(place, 0.0, 1.0);
    if (std::exchange(split, limited) != limited)
        invalid();
}

void preview_view::set_colour_listener(std::function<void(const std::optional<picked_colour>&)> listener)
{
    colour_listener = std::move(listener);
}

CRect preview_view::picture_area() const
{
    if (!scroller)
        return {};
    const preview_geometry& geometry = scroller->getGeometry();
    const double zoom = scroller->getZoom();
    const preview_point corner = geometry.picture_corner(zoom);
    CRect area(0, 0, geometry.picture_width * zoom, geometry.picture_height * zoom);
    area.offset(getViewSize().left + corner.x, getViewSize().top + corner.y);
    return area;
}

double preview_view::line_x() const
{
    const CRect area = picture_area();
    // On whole points, so that the line is equally sharp everywhere.
    return std::round(area.left + area.getWidth() * split);
}

bool preview_view::is_on_line(const CPoint& where) const
{
    return mode == comparison::split && std::abs(where.x - line_x()) <= line_reach;
}

void preview_view::draw(CDrawContext* context)
{
    layer& graded = trial.picture.is_empty() ? after : trial;
    CRect area = picture_area();
    area.bound(getVisibleViewSize());
    if (!area.isEmpty() && !after.picture.is_empty())
    {
        switch (mode)
        {
        case comparison::after:
            draw_layer(context, graded, area);
            break;
        case comparison::before:
            draw_layer(context, before, area);
            break;
        case comparison::split:
            draw_split(context, graded, area);
            break;
        }
    }
    setDirty(false);
}

void preview_view::draw_split(CDrawContext* context, layer& graded, const CRect& area)
{
    // Both layers are drawn for the whole area and clipped, so that moving the line computes no pixel again.
    CRect left = area, right = area;
    left.right = right.left = std::clamp(line_x(), area.left, area.right);
    {
        ConcatClip clip(*context, left);
        draw_layer(context, before, area);
    }
    {
        ConcatClip clip(*context, right);
        draw_layer(context, graded, area);
    }
    draw_line(context);
}

void preview_view::draw_layer(CDrawContext* context, layer& shown, const CRect& area)
{
    const double scale = getFrame() ? getFrame()->getZoom() : 1;
    const CRect aligned = whole_pixels(area, scale);
    // Only the visible part is scaled, and only once for a zoom and a scroll position.
    if (shown.drawn_zoom != scroller->getZoom() || shown.drawn_area != aligned)
        render_layer(shown, aligned, scale);
    if (shown.drawn)
        shown.drawn->draw(context, aligned);
}

void preview_view::render_layer(layer& shown, const CRect& area, double scale)
{
    const CPoint size(std::round(area.getWidth() * scale), std::round(area.getHeight() * scale));
    if (!shown.drawn || shown.drawn->getPlatformBitmap()->getSize() != size)
    {
        shown.drawn = makeOwned<CBitmap>(size.x, size.y);
        shown.drawn->getPlatformBitmap()->setScaleFactor(scale);
    }
    const CRect picture = picture_area();
    // The picture in screen pixels, of which the bitmap shows a part.
    const display_window window{(area.left - picture.left) * scale, (area.top - picture.top) * scale,
                                static_cast<std::uint32_t>(size.x), static_cast<std::uint32_t>(size.y),
                                scroller->getZoom()};
    if (const auto pixels = shown.drawn->getPlatformBitmap()->lockPixels(true))
        draw_zoomed(shown.picture, window, pixels->getAddress(), pixels->getBytesPerRow());
    shown.drawn_area = area;
    shown.drawn_zoom = scroller->getZoom();
}

void preview_view::draw_line(CDrawContext* context)
{
    CRect visible = picture_area();
    visible.bound(getVisibleViewSize());
    const CCoord x = line_x(), middle = visible.getCenter().y;
    context->setDrawMode(kAntiAliasing | kNonIntegralMode);
    const auto draw_bar = [&](const CColor& colour, CCoord half_width)
    {
        context->setFillColor(colour);
        context->drawRect(CRect(x - half_width, visible.top, x + half_width, visible.bottom), kDrawFilled);
    };
    // The dark edges keep the line visible on bright pictures.
    draw_bar(style::split_shadow, 1.5);
    draw_bar(style::split_line, 0.5);
    const auto grip = owned(context->createGraphicsPath());
    grip->addEllipse(
        CRect(x - line_grip_radius, middle - line_grip_radius, x + line_grip_radius, middle + line_grip_radius));
    context->setFillColor(style::split_line);
    context->setFrameColor(style::split_shadow);
    context->setLineWidth(1);
    context->drawGraphicsPath(grip, CDrawContext::kPathFilled);
    context->drawGraphicsPath(grip, CDrawContext::kPathStroked);
}

std::optional<picked_colour> preview_view::pick_colour(const CPoint& where) const
{
    const CRect area = picture_area();
    if (!scroller || !area.pointInside(where) || after.picture.is_empty())
        return {};
    const auto place = [](double from, double length, std::uint32_t count)
    {
        // The far edge counts as the last pixel.
        const auto i = static_cast<std::int64_t>(std::floor(from / length * count));
        return static_cast<std::uint32_t>(std::clamp<std::int64_t>(i, 0, std::int64_t{count} - 1));
    };
    const std::uint32_t x = place(where.x - area.left, area.getWidth(), after.picture.width);
    const std::uint32_t y = place(where.y - area.top, area.getHeight(), after.picture.height);
    // While frames of two sizes are on their way, before and after do not match.
    const bool has_before =
        before.picture.width == after.picture.width && before.picture.height == after.picture.height;
    const std::uint32_t graded = after.picture.row(y)[x];
    return picked_colour{static_cast<int>(x), static_cast<int>(y), has_before ? before.picture.row(y)[x] : graded,
                         graded};
}

void preview_view::report_colour(const CPoint& where)
{
    if (colour_listener)
        colour_listener(pick_colour(where));
}

void preview_view::drag_to(const CPoint& where)
{
    const CPoint moved = where - last_position;
    if (drag == dragging::line)
    {
        const CRect area = picture_area();
        // At least 1: an empty picture has no width to divide by.
        set_split((where.x - area.left) / std::max(1.0, area.getWidth()));
        last_position = where;
    }
    else if (drag == dragging::picture && scroller)
    {
        scroller->panBy(moved.x, moved.y);
        last_position = where;
    }
}

void preview_view::onMouseDownEvent(MouseDownEvent& event)
{
    // With any other button, and beside the line, a drag pans the picture.
    drag = event.buttonState.isLeft() && is_on_line(event.mousePosition) ? dragging::line : dragging::picture;
    last_position = event.mousePosition;
    event.consumed = true;
}

void preview_view::onMouseMoveEvent(MouseMoveEvent& event)
{
    if (drag != dragging::nothing)
        drag_to(event.mousePosition);
    else if (getFrame())
        // The cursor shows what a press would drag.
        getFrame()->setCursor(is_on_line(event.mousePosition) ? kCursorHSize : kCursorDefault);
    report_colour(event.mousePosition);
    event.consumed = true;
}

void preview_view::onMouseUpEvent(MouseUpEvent& event)
{
    drag = dragging::nothing;
    event.consumed = true;
}

void preview_view::onMouseCancelEvent(MouseCancelEvent& event)
{
    drag = dragging::nothing;
    event.consumed = true;
}

void preview_view::onMouseExitEvent(MouseExitEvent& event)
{
    if (getFrame())
        getFrame()->setCursor(kCursorDefault);
    if (colour_listener)
        colour_listener({});
    event.consumed = true;
}

} // namespace ov1
