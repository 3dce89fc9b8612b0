#include "scopes/scope_picture.h"

#include <cmath>

namespace ov1
{

namespace
{

/// Blends every pixel whose centre is near a shape; distance(x, y) is the distance from the centre line of the shape.
template <class function>
void paint_near(scope_picture& picture, double left, double top, double right, double bottom, double thickness,
                const scope_colour& colour, const function& distance)
{
    // Half the thickness, and half a pixel for the soft edge: the cover falls from 1 to 0 over one pixel.
    const double reach = (thickness + 1) / 2;
    const auto within = [](double v, int size)
    { return static_cast<int>(std::clamp(v, 0.0, static_cast<double>(size))); };
    const int x_end = within(std::ceil(right + reach), picture.width),
              y_end = within(std::ceil(bottom + reach), picture.height);
    for (int y = within(std::floor(top - reach), picture.height); y < y_end; ++y)
        for (int x = within(std::floor(left - reach), picture.width); x < x_end; ++x)
        {
            // A pixel is judged at its centre, half a pixel from its corner.
            const double cover = reach - distance(x + 0.5, y + 0.5);
            if (cover > 0)
                picture.row(y)[x] = blended(picture.row(y)[x], colour, static_cast<float>(std::min(cover, 1.0)));
        }
}

} // namespace

void scope_picture::reset(int new_width, int new_height)
{
    width = new_width;
    height = new_height;
    // Blending with cover 1 gives the colour itself, opaque.
    pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), blended(0, scope_background, 1));
}

void paint_rect(scope_picture& picture, const rect& area, const scope_colour& colour, float cover)
{
    const int right = std::min(area.x + area.width, picture.width);
    const int bottom = std::min(area.y + area.height, picture.height);
    for (int y = std::max(0, area.y); y < bottom; ++y)
        for (int x = std::max(0, area.x); x < right; ++x)
            picture.row(y)[x] = blended(picture.row(y)[x], colour, cover);
}

void paint_line(scope_picture& picture, double x0, double y0, double x1, double y1, double thickness,
                const scope_colour& colour)
{
    // The square of the length. The lower limit avoids a division by 0 for a line between two equal points.
    const double dx = x1 - x0, dy = y1 - y0, length = std::max(1e-9, dx * dx + dy * dy);
    const auto distance = [&](double x, double y)
    {
        // The nearest point of the line: 0 at its beginning, 1 at its end.
        const double along = std::clamp(((x - x0) * dx + (y - y0) * dy) / length, 0.0, 1.0);
        return std::hypot(x - x0 - along * dx, y - y0 - along * dy);
    };
    paint_near(picture, std::min(x0, x1), std::min(y0, y1), std::max(x0, x1), std::max(y0, y1), thickness, colour,
               distance);
}

void paint_circle(scope_picture& picture, double x, double y, double radius, double thickness,
                  const scope_colour& colour)
{
    // No pixel outside this ring is covered.
    const double inner = std::max(0.0, radius - thickness - 1), outer = radius + thickness + 1;
    const auto distance = [&](double px, double py)
    {
        const double squared = (px - x) * (px - x) + (py - y) * (py - y);
        const bool is_far =
            squared < inner * inner || squared > outer * outer; // true for most pixels, which saves the square root
        return is_far ? outer : std::abs(std::sqrt(squared) - radius);
    };
    paint_near(picture, x - radius, y - radius, x + radius, y + radius, thickness, colour, distance);
}

void paint_frame(scope_picture& picture, double x, double y, double reach, double thickness, const scope_colour& colour)
{
    // The larger of the two coordinates gives a square, without rounded corners.
    const auto distance = [&](double px, double py)
    { return std::abs(std::max(std::abs(px - x), std::abs(py - y)) - reach); };
    paint_near(picture, x - reach, y - reach, x + reach, y + reach, thickness, colour, distance);
}

} // namespace ov1
