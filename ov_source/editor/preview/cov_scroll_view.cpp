#include "editor/preview/cov_scroll_view.h"

#include "editor/controls/style/view_area.h"

#include "vstgui/lib/cframe.h"
#include "vstgui/lib/events.h"

namespace ov1
{

using namespace VSTGUI;

namespace
{

constexpr CCoord default_scrollbar_width = 16;

} // namespace

COVScrollView::COVScrollView(const CRect& size, const CRect& container_size, int32_t style)
    : CScrollView(size, container_size,
                  style | kHorizontalScrollbar | kVerticalScrollbar | kOverlayScrollbars | kAutoHideScrollbars |
                      kDontDrawFrame,
                  default_scrollbar_width)
{
    geometry.view_width = size.getWidth();
    geometry.view_height = size.getHeight();
}

double COVScrollView::screenScale() const
{
    const CFrame* frame = getFrame();
    return frame ? frame->getZoom() : 1;
}

void COVScrollView::setPictureSize(double width, double height)
{
    if (width == picture_width && height == picture_height)
        return;
    picture_width = width;
    picture_height = height;
    // At zoom 1 a picture pixel is a screen pixel, and a point is screenScale of them.
    geometry.picture_width = width / screenScale();
    geometry.picture_height = height / screenScale();
    zoomToFit();
}

void COVScrollView::setCoveredBottom(double height)
{
    // The limits of zoom and scrolling depend on it: setZoom applies the new ones.
    geometry.covered_bottom = height;
    setZoom(zoom);
}

void COVScrollView::zoomToFit()
{
    fitted = true;
    zoom = geometry.fit_zoom();
    // All of the picture is visible, so no point has to keep its place.
    layOut({}, {});
}

void COVScrollView::setZoom(double wanted, const preview_point& at)
{
    const preview_point offset = scrolledTo();
    // In picture pixels, which the new zoom does not change.
    const preview_point in_picture = geometry.to_picture(zoom, {at.x + offset.x, at.y + offset.y});
    zoom = geometry.limit_zoom(wanted);
    fitted = zoom == geometry.fit_zoom(); // limit_zoom returns it exactly
    layOut(in_picture, at);
}

void COVScrollView::setZoom(double wanted) { setZoom(wanted, {geometry.view_width / 2, geometry.view_height / 2}); }

void COVScrollView::zoomInOrOut(bool in) { setZoom(geometry.next_zoom(zoom, in)); }

/// The toolkit reports a horizontal offset as a negative number and a vertical one as a positive number.
preview_point COVScrollView::scrolledTo() const { return {-getScrollOffset().x, getScrollOffset().y}; }

void COVScrollView::layOut(const preview_point& in_picture, const preview_point& in_view)
{
    // The child is as large as the content: it draws the picture and the margin around it.
    const preview_point content = geometry.content_size(zoom);
    const preview_point offset = geometry.offset_for(zoom, in_picture, in_view);
    const CRect size(0, 0, content.x, content.y);
    resetScrollOffset();
    setContainerSize(size);
    if (CView* shown = getNbViews() > 0 ? getView(0) : nullptr)
        place_view(*shown, size);
    setScrollOffset(CPoint(offset.x, offset.y));
    invalid();
    if (zoom_listener)
        zoom_listener();
}

void COVScrollView::panBy(double x, double y)
{
    const preview_point now = scrolledTo();
    // By way of the picture, because offset_for limits its result.
    const preview_point at = geometry.to_picture(zoom, {now.x - x, now.y - y});
    const preview_point offset = geometry.offset_for(zoom, at, {});
    setScrollOffset(CPoint(offset.x, offset.y));
}

void COVScrollView::onMouseWheelEvent(MouseWheelEvent& event)
{
    if (event.deltaY != 0)
    {
        CPoint where = event.mousePosition;
        where.offset(-getViewSize().left, -getViewSize().top);
        setZoom(geometry.next_zoom(zoom, event.deltaY > 0), {where.x, where.y});
    }
    event.consumed = true; // the wheel only zooms; CScrollView would scroll
}

void COVScrollView::setViewSize(const CRect& rect, bool invalid)
{
    CScrollView::setViewSize(rect, invalid);
    geometry.view_width = rect.getWidth();
    geometry.view_height = rect.getHeight();
    // A fitted picture stays fitted; any other keeps its zoom, within the new limits.
    if (fitted)
        zoomToFit();
    else
        setZoom(zoom);
}

} // namespace ov1
