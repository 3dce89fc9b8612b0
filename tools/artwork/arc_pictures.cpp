#include "tools/artwork/arc_pictures.h"

#include "tools/artwork/arc_geometry.h"
#include "tools/artwork/arc_ramps.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace ov1
{

namespace
{

std::vector<rgb_double> colours_along(const std::function<rgb_double(double place)>& colour)
{
    constexpr int steps = 64;
    std::vector<rgb_double> colours;
    for (int i = 0; i <= steps; ++i)
        colours.push_back(colour(static_cast<double>(i) / steps));
    return colours;
}

rgb_double colour_at(const std::vector<rgb_double>& colours, double place)
{
    const double at = std::clamp(place, 0.0, 1.0) * static_cast<double>(colours.size() - 1);
    const auto i = std::min(static_cast<std::size_t>(at), colours.size() - 2);
    const double way = at - static_cast<double>(i);
    const rgb_double &from = colours[i], &to = colours[i + 1];
    return {std::lerp(from.r, to.r, way), std::lerp(from.g, to.g, way), std::lerp(from.b, to.b, way)};
}

/// The arrow's angle at the greatest value, in radians; at the least it is the same below the horizontal.
double reach_of(const arc_picture& arc)
{
    return std::asin((arc_height_points / 2.0 - arc.inset_points) / arc_width_points);
}

/// Where the band ends: past the arrow's last place, whose two halves may turn further still.
double band_reach()
{
    const double half_spread = half_spread_degrees * std::numbers::pi / 180.0;
    const double plain = std::asin((arc_height_points / 2.0 - arc_inset_points) / arc_width_points);
    const double spread = std::asin((arc_height_points / 2.0 - spread_arc_inset_points) / arc_width_points);
    return std::max(plain, spread + half_spread);
}

/// Points from the band's outline, negative within; away is the distance from the pivot to the side of the band, up
/// that above its height.
double outside_band(double away, double up)
{
    constexpr double half = (band_end_points - band_begin_points) / 2.0, middle = band_begin_points + half;
    const double reach = band_reach();
    const double angle = std::clamp(std::atan2(up, away), -reach, reach);
    return std::hypot(away - middle * std::cos(angle), up - middle * std::sin(angle)) - half;
}

argb_float pixel(const arc_picture& arc, double away, double up)
{
    constexpr double edge_level = 0.55;
    const double outside = outside_band(away, up) * picture_scale;
    const double cover = std::clamp(0.5 - outside, 0.0, 1.0);
    if (cover == 0.0)
        return {};
    const double inner = std::clamp(0.5 - outside - band_edge_points * picture_scale, 0.0, 1.0);
    const double level = std::lerp(edge_level, 1.0, inner);
    const rgb_double c = colour_at(arc.colours, (std::atan2(up, away) / reach_of(arc) + 1.0) / 2.0);
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
         colours_along([&](double place) { return chroma_ramp(engine, place); })},
        {"gray_slider_background_left.png", left, spread_arc_inset_points, greys},
        {"gray_slider_background_right.png", right, arc_inset_points, greys},
        {"skin_brightness_slider_background_right.png", right, arc_inset_points,
         colours_along([&](double place) { return skin_brightness_ramp(engine, place); })},
        {"skin_protection_slider_background_left.png", left, spread_arc_inset_points,
         colours_along([&](double place) { return protection_ramp(engine, place); })},
    };
}

std::vector<argb_float> draw_arc(const arc_picture& arc)
{
    std::vector<argb_float> pixels;
    for (int y = 0; y < arc_height_pixels; ++y)
        for (int x = 0; x < arc_width_pixels; ++x)
        {
            const double from_left = (x + 0.5) / picture_scale;
            pixels.push_back(pixel(arc, arc.side == arc_side::right ? from_left : arc_width_points - from_left,
                                   arc_height_points / 2.0 - (y + 0.5) / picture_scale));
        }
    return pixels;
}

} // namespace ov1
