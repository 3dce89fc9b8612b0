// Where a zoomed picture lies in the preview, as arithmetic.
#pragma once

namespace ov1
{

struct preview_point
{
    double x = 0;
    double y = 0;

    bool operator==(const preview_point&) const = default;
};

/// Sizes of the picture in its own pixels, of the view in points; zoom is points for each pixel.
struct preview_geometry
{
    static constexpr double largest_zoom = 8;

    double picture_width = 0;
    double picture_height = 0;
    double view_width = 0;
    double view_height = 0;
    /// Of the view's height, what something else covers at the bottom: the picture is fitted above it, and can be
    /// scrolled out from beneath it.
    double covered_bottom = 0;

    /// The zoom at which the whole picture is seen and fills the view, at most largest_zoom; 1 without a picture.
    double fit_zoom() const;
    /// Limited to fit_zoom .. largest_zoom.
    double limit_zoom(double zoom) const;
    /// The next of the steps 25, 33, 50, 67, 100, 150, 200, 300, 400, 600, 800 % above or below, with fit_zoom as the
    /// lowest.
    double next_zoom(double zoom, bool larger) const;

    /// What is scrolled over: the zoomed picture, or the view where that is larger.
    preview_point content_size(double zoom) const;
    /// The picture's upper left corner within the content: centred where the view is larger.
    preview_point picture_corner(double zoom) const;
    /// In picture pixels, for a point of the content.
    preview_point to_picture(double zoom, const preview_point& in_content) const;
    preview_point to_content(double zoom, const preview_point& in_picture) const;
    /// The scroll offset at which the picture's point in_picture lies at in_view, limited to what can be scrolled.
    preview_point offset_for(double zoom, const preview_point& in_picture, const preview_point& in_view) const;

private:
    double free_height() const { return view_height - covered_bottom; }
};

} // namespace ov1
