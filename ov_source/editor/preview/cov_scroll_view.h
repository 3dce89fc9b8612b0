// Scroll bars, zoom and panning for the preview.
#pragma once

#include "editor/preview/preview_geometry.h"

#include "vstgui/lib/cscrollview.h"

#include <functional>

namespace ov1
{

/// Contains one view, as large as the zoomed picture. A zoom of 1 shows one picture pixel on one pixel of the screen.
/// The mouse wheel zooms, and the point under the mouse stays where it is.
class COVScrollView : public VSTGUI::CScrollView
{
public:
    /// style takes CScrollView's bits. Both scroll bars always exist; they lie over the content, and hide while there
    /// is nothing to scroll.
    COVScrollView(const VSTGUI::CRect& size, const VSTGUI::CRect& container_size, int32_t style);

    /// In pixels. A picture of another size than the one before is fitted; the same size keeps zoom and position.
    void setPictureSize(double width, double height);

    /// In points; see preview_geometry::covered_bottom.
    void setCoveredBottom(double height);

    void zoomToFit();
    /// The point at, in points from the view's upper left corner, keeps showing the same place of the picture; by
    /// default the view's middle. The zoom is limited to fitting .. largest_zoom.
    void setZoom(double zoom, const preview_point& at);
    void setZoom(double zoom);
    /// To the next step; see preview_geometry::next_zoom.
    void zoomInOrOut(bool in);
    double getZoom() const { return zoom; }
    bool isFitted() const { return fitted; }
    /// Moves the picture right and down, in points, as far as it can be scrolled.
    void panBy(double x, double y);
    /// In points: the picture's size is divided by the frame's zoom.
    const preview_geometry& getGeometry() const { return geometry; }
    /// Called after zoom, fit or size has changed.
    void setZoomListener(std::function<void()> listener) { zoom_listener = std::move(listener); }

    void onMouseWheelEvent(VSTGUI::MouseWheelEvent& event) override;
    void setViewSize(const VSTGUI::CRect& rect, bool invalid = true) override;

private:
    /// Screen pixels to a point.
    double screenScale() const;
    /// The point of the content in the view's upper left corner.
    preview_point scrolledTo() const;
    /// Resizes the content for the zoom and scrolls it; see preview_geometry::offset_for.
    void layOut(const preview_point& in_picture, const preview_point& in_view);

    preview_geometry geometry;
    double picture_width = 0; ///< in pixels
    double picture_height = 0;
    double zoom = 1;
    bool fitted = true;
    std::function<void()> zoom_listener;
};

} // namespace ov1
