#include "editor/preview/preview_geometry.h"

#include <algorithm>
#include <array>

namespace ov1
{

namespace
{

constexpr std::array<double, 11> zoom_steps = {0.25, 1. / 3, 0.5, 2. / 3, 1, 1.5, 2, 3, 4, 6, 8};
/// Zooms that differ by less count as equal.
constexpr double same_zoom = 1e-3;

} // namespace

double preview_geometry::fit_zoom() const
{
    if (picture_width <= 0 || picture_height <= 0 || view_width <= 0 || free_height() <= 0)
        // Without a picture or room every zoom would do; to_picture divides by it, so it is not 0.
        return 1;
    return std::min({view_width / picture_width, free_height() / picture_height, largest_zoom});
}

double preview_geometry::limit_zoom(double zoom) const { return std::clamp(zoom, fit_zoom(), largest_zoom); }

double preview_geometry::next_zoom(double zoom, bool larger) const
{
    if (larger)
    {
        // A zoom that rounding put just below a step counts as that step.
        const auto above = std::ranges::find_if(zoom_steps, [&](double step) { return step > zoom + same_zoom; });
        return limit_zoom(above == zoom_steps.end() ? largest_zoom : *above);
    }
    // Fitting is a step of its own, between the fixed ones.
    double below = fit_zoom();
    for (const double step : zoom_steps)
        if (step < zoom - same_zoom)
            below = std::max(below, step);
    return below;
}

preview_point preview_geometry::content_size(double zoom) const
{
    return {std::max(view_width, picture_width * zoom), std::max(view_height, picture_height * zoom + covered_bottom)};
}

preview_point preview_geometry::picture_corner(double zoom) const
{
    return {std::max(0.0, (view_width - picture_width * zoom) / 2),
            std::max(0.0, (free_height() - picture_height * zoom) / 2)};
}

preview_point preview_geometry::to_picture(double zoom, const preview_point& in_content) const
{
    const preview_point corner = picture_corner(zoom);
    return {(in_content.x - corner.x) / zoom, (in_content.y - corner.y) / zoom};
}

preview_point preview_geometry::to_content(double zoom, const preview_point& in_picture) const
{
    const preview_point corner = picture_corner(zoom);
    return {corner.x + in_picture.x * zoom, corner.y + in_picture.y * zoom};
}

preview_point preview_geometry::offset_for(double zoom, const preview_point& in_picture,
                                           const preview_point& in_view) const
{
    const preview_point content = content_size(zoom), at = to_content(zoom, in_picture);
    // The content is never smaller than the view: the upper bounds are not negative.
    return {std::clamp(at.x - in_view.x, 0.0, content.x - view_width),
            std::clamp(at.y - in_view.y, 0.0, content.y - view_height)};
}

} // namespace ov1
