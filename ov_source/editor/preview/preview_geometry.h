// The arithmetic of zoom and scrolling: where a zoomed picture lies in the preview.
#pragma once

namespace ov1
{

struct preview_point
{
    double x = 0;
    double y = 0;

    bool operator==(const preview_point&) const = default;
};

/// The picture's size is in picture pixels, the view's in points; a zoom is points for each pixel. Content is what is
/// scrolled: coordinates in it are points from its upper left corner.
struct preview_geometry
{
    static constexpr double largest_zoom = 8;

    double picture_width = 0;
    double picture_height = 0;
    double view_width = 0;
    double view_height = 0;
    /// Points at the view's bottom that the bar covers. The picture is fitted above them, and its last rows can be
    /// scrolled out from under them.
    double covered_bottom = 0;

    /// The largest zoom at which the whole picture is visible, at most largest_zoom; 1 without a picture.
    double fit_zoom() const;
    /// Limited to fit_zoom .. largest_zoom.
    double limit_zoom(double zoom) const;
    /// The next larger or smaller of the steps 25, 33, 50, 67, 100, 150, 200, 300, 400, 600 and 800 %, within
    /// fit_zoom .. largest_zoom.
    double next_zoom(double zoom, bool larger) const;

    /// The size of the content: in each direction the zoomed picture's or the view's, whichever is larger.
    preview_point content_size(double zoom) const;
    /// The picture's upper left corner in the content. The picture is centred where the view is larger.
    preview_point picture_corner(double zoom) const;
    /// From content to picture pixels, and back.
    preview_point to_picture(double zoom, const preview_point& in_content) const;
    preview_point to_content(double zoom, const preview_point& in_picture) const;
    /// The scroll offset that puts the picture's point in_picture at the view's point in_view, limited to the content.
    preview_point offset_for(double zoom, const preview_point& in_picture, const preview_point& in_view) const;

private:
    double free_height() const { return view_height - covered_bottom; }
};

} // namespace ov1
