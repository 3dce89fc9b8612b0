// The preview's frame: scroll bars, zoom and panning around one content view.
#pragma once

#include "editor/preview/preview_geometry.h"

#include "vstgui/lib/cscrollview.h"

#include <functional>

namespace ov1
{

/// Holds one view, as large as the zoomed picture. A zoom of 1 shows one picture pixel on one pixel of the screen. The
/// mouse wheel zooms about the pointer.
class COVScrollView : public VSTGUI::CScrollView
{
public:
    /// style as CScrollView takes it; both scroll bars are there in any case, over the content, and hide where there is
    /// nothing to scroll.
    COVScrollView(const VSTGUI::CRect& size, const VSTGUI::CRect& container_size, int32_t style);

    /// In pixels. The first picture is fitted; later ones of the same size keep zoom and place.
    void setPictureSize(double width, double height);

    /// In points; see preview_geometry.
    void setCoveredBottom(double height);

    void zoomToFit();
    /// Keeps the point of the view (in points from its upper left corner) where it is; without one, the middle.
    void setZoom(double zoom, const preview_point& at);
    void setZoom(double zoom);
    void zoomInOrOut(bool in);
    double getZoom() const { return zoom; }
    bool isFitted() const { return fitted; }
    void panBy(double x, double y);
    /// In points: sizes divided by the frame's scale.
    const preview_geometry& getGeometry() const { return geometry; }
    /// Called when zoom or fit has changed.
    void setZoomListener(std::function<void()> listener) { zoom_listener = std::move(listener); }

    void onMouseWheelEvent(VSTGUI::MouseWheelEvent& event) override;
    void setViewSize(const VSTGUI::CRect& rect, bool invalid = true) override;

private:
    double screenScale() const;
    preview_point scrolledTo() const;
    void layOut(const preview_point& in_picture, const preview_point& in_view);

    preview_geometry geometry;
    double picture_width = 0;
    double picture_height = 0;
    double zoom = 1;
    bool fitted = true;
    std::function<void()> zoom_listener;
};

} // namespace ov1
