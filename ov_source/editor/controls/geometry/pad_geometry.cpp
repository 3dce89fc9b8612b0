#include "editor/controls/geometry/pad_geometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ov1
{

namespace
{

constexpr float pi = std::numbers::pi_v<float>;
constexpr float radians_per_degree = 0.017453292F; // single precision throughout: the toolkit's values are floats

/// From the centre; 1 is the middle of the pad's edge.
struct offset
{
    float x = 0.0F;
    float y = 0.0F;

    float length() const { return std::sqrt(x * x + y * y); }
};

offset offset_of(const pad_place& place) { return {2.0F * place.x - 1.0F, 2.0F * place.y - 1.0F}; }

pad_place place_at(const offset& from_centre) { return {(from_centre.x + 1.0F) / 2.0F, (from_centre.y + 1.0F) / 2.0F}; }

} // namespace

float pack_pad_value(const pad_place& place)
{
    // The toolkit's formula in its order of operations: another order would differ in the last bit.
    return std::floor(place.x * 1000.0F + 0.5F) * 0.001F + std::floor(place.y * 1000.0F + 0.5F) * 0.0000001F;
}

pad_place unpack_pad_value(float value)
{
    // y adds at most 0.0001 to the value, so rounding to thousandths gives x alone.
    const float x = std::floor(value * 1000.0F + 0.5F) * 0.001F;
    return {x, std::floor((value - x) * 10000000.0F + 0.5F) * 0.001F};
}

std::optional<pad_polar> polar_of(const pad_place& place, float max_radius)
{
    const offset handle = offset_of(place);
    if (handle.x == 0.0F || handle.y == 0.0F)
        return std::nullopt;
    // Both signs are turned, so that 0 is up and angles grow to the left.
    float angle = std::atan2(-handle.x, -handle.y);
    // atan2 returns -pi..pi.
    if (angle < 0.0F)
        angle += 2.0F * pi;
    return pad_polar{angle * 180.0F / pi, std::min(handle.length() / max_radius, 1.0F) * 100.0F};
}

pad_place place_of(const pad_polar& polar, float max_radius)
{
    // The minus sign reverses both axes, as in polar_of: 0 is up, 90 is left.
    const float distance = -0.01F * max_radius * polar.radius;
    const float angle = polar.angle * radians_per_degree;
    return place_at({std::sin(angle) * distance, std::cos(angle) * distance});
}

pad_polar nudged(const pad_polar& polar, float right, float down)
{
    constexpr float no_distance = 0.001F; // percent; the direction of less is rounding noise
    const float angle = polar.angle * radians_per_degree;
    // In percent of the rim's distance, so that the limit below is 100.
    const offset handle = {right - std::sin(angle) * polar.radius, down - std::cos(angle) * polar.radius};
    if (handle.length() < no_distance)
        return {polar.angle, 0.0F};
    const float turned = std::atan2(-handle.x, -handle.y) * 180.0F / pi;
    return {turned < 0.0F ? turned + 360.0F : turned, std::min(handle.length(), 100.0F)};
}

pad_place pulled_onto_rim(const pad_place& place, float max_radius)
{
    const offset handle = offset_of(place);
    const float length = handle.length();
    if (!(length > max_radius)) // also for a NaN
        return place;
    const float shrink = max_radius / length;
    return place_at({handle.x * shrink, handle.y * shrink});
}

pad_point handle_centre(const pad_place& place, double width, double height, double handle_diameter)
{
    // The handle stays within the view: its centre moves over the width less the handle's diameter.
    const double half = handle_diameter / 2.0;
    return {half + (width - handle_diameter) * place.x, half + (height - handle_diameter) * place.y};
}

bool pad_contains(const pad_point& point, double width, double height, float max_radius)
{
    // -1..1 across the view, which is the unit of max_radius.
    const double x = 2.0 * point.x / width - 1.0;
    const double y = 2.0 * point.y / height - 1.0;
    return std::sqrt(x * x + y * y) <= max_radius;
}

} // namespace ov1
