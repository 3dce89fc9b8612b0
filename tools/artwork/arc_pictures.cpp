#include "tools/artwork/arc_pictures.h"

#include "editor/controls/geometry/arc_geometry.h"
#include "tools/artwork/arc_ramps.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace ov1
{

namespace
{

// The band, from the pivot. The tip stands on its inner third, so that the colour it points at stays visible.
constexpr double arrow_points = arrow_length(arc_width_points, arrow_frame_points);
constexpr double band_begin_points = arrow_points - 1.5;
constexpr double band_end_points = arrow_points + 2.75;
constexpr double band_edge_points = 0.5; // darkened, for colours that are close to the panel's own

std::vector<rgb_double> colours_along(const std::function<rgb_double(double position)>& colour)
{
    constexpr int steps = 64;
    std::vector<rgb_double> colours;
    for (int i = 0; i <= steps; ++i)
        colours.push_back(colour(static_cast<double>(i) / steps));
    return colours;
}

rgb_double colour_at(const std::vector<rgb_double>& colours, double position)
{
    const double at = std::clamp(position, 0.0, 1.0) * static_cast<double>(colours.size() - 1);
    // At position 1 the last interval is used, with fraction 1.
    const auto i = std::min(static_cast<std::size_t>(at), colours.size() - 2);
    const double fraction = at - static_cast<double>(i);
    const rgb_double &from = colours[i], &to = colours[i + 1];
    return {std::lerp(from.r, to.r, fraction), std::lerp(from.g, to.g, fraction), std::lerp(from.b, to.b, fraction)};
}

/// The arrow's angle at value 1, in radians; at value 0 it is the same below the horizontal.
double reach_of(double inset_points)
{
    return arc_angles_of(arc_width_points, arc_height_points / 2.0, inset_points, arc_height_points - inset_points)
        .at(1.0);
}

/// Half the angle of the band: both ends cover the last position of every arrow. Of two arrows, each turns away from
/// the value's angle by half of the spread.
double band_reach()
{
    const double half_spread = full_spread_degrees / 2.0 * std::numbers::pi / 180.0;
    return std::max(reach_of(arc_inset_points), reach_of(spread_arc_inset_points) + half_spread);
}

/// Signed distance from the band's outline in points, negative inside. The point is given from the pivot: away is the
/// distance towards the band, up the height above the pivot.
double outside_band(double away, double up)
{
    constexpr double half = (band_end_points - band_begin_points) / 2.0, middle = band_begin_points + half;
    const double reach = band_reach();
    // The nearest point of the band's centre line has this angle; the clamp makes the ends round.
    const double angle = std::clamp(std::atan2(up, away), -reach, reach);
    return std::hypot(away - middle * std::cos(angle), up - middle * std::sin(angle)) - half;
}

argb_float pixel(const arc_picture& arc, double away, double up)
{
    constexpr double edge_level = 0.55; // of the colour, on the darkened edge
    const double outside = outside_band(away, up) * artwork_scale;
    // The transition is one pixel wide, centred on the outline.
    const double cover = std::clamp(0.5 - outside, 0.0, 1.0);
    if (cover == 0.0)
        return {};
    const double inner = std::clamp(0.5 - outside - band_edge_points * artwork_scale, 0.0, 1.0);
    const double level = std::lerp(edge_level, 1.0, inner);
    const rgb_double c = colour_at(arc.colours, (std::atan2(up, away) / reach_of(arc.inset_points) + 1.0) / 2.0);
    return {static_cast<float>(cover), static_cast<float>(c.r * level), static_cast<float>(c.g * level),
            static_cast<float>(c.b * level)};
}

} // namespace

std::vector<arc_picture> make_arc_pictures(engine_colours& engine)
{
    using enum arc_side;
    const std::vector<rgb_double> greys = colours_along(lightness_ramp);
    return {
        {"global_saturation_background.png", left, arc_inset_points,
         colours_along([&](double position) { return chroma_ramp(engine, position); })},
        {"gray_slider_background_left.png", left, spread_arc_inset_points, greys},
        {"gray_slider_background_right.png", right, arc_inset_points, greys},
        {"skin_brightness_slider_background_right.png", right, arc_inset_points,
         colours_along([&](double position) { return skin_brightness_ramp(engine, position); })},
        {"skin_protection_slider_background_left.png", left, spread_arc_inset_points,
         colours_along([&](double position) { return protection_ramp(engine, position); })},
    };
}

std::vector<argb_float> draw_arc(const arc_picture& arc)
{
    std::vector<argb_float> pixels;
    for (int y = 0; y < arc_height_pixels; ++y)
        for (int x = 0; x < arc_width_pixels; ++x)
        {
            // In points, from the pixel's middle.
            const double from_left = (x + 0.5) / artwork_scale;
            pixels.push_back(pixel(arc, arc.side == arc_side::right ? from_left : arc_width_points - from_left,
                                   arc_height_points / 2.0 - (y + 0.5) / artwork_scale));
        }
    return pixels;
}

} // namespace ov1
