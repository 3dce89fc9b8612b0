#include "effect/reference/lut.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

namespace
{

constexpr std::size_t falloff_count = 65536;

/// In 16-bit units. The squares are added in the order red, green, blue, as in the vector code.
float distance(const argb_float& p, const argb_float& q)
{
    const float r = p.r - q.r, g = p.g - q.g, b = p.b - q.b;
    return std::sqrt(r * r + g * g + b * b);
}

/// From 16-bit units to code values 0..1, with the rounding of lut_argb::init.
float limited(float v) { return v > u16_max ? 1.0f : std::max(v, 0.0f) * unit_per_u16; }

/// A grid position moved by all points; in 16-bit units.
argb_float moved(const argb_float& position, const std::vector<lut_point>& points, const std::vector<float>& falloff)
{
    argb_float to = position;
    for (const lut_point& point : points)
    {
        const float near = std::min(distance(position, point.source), point.radius);
        const auto step = static_cast<std::size_t>(point.radius_scale * near);
        const float weight = falloff[std::min(step, falloff_count - 1)]; // rounding can reach 65,536
        to.r += (point.target.r - point.source.r) * weight;
        to.g += (point.target.g - point.source.g) * weight;
        to.b += (point.target.b - point.source.b) * weight;
    }
    return to;
}

} // namespace

template <std::size_t edge>
lut<edge>::lut()
    : falloff(falloff_count)
{
    for (std::size_t i = 0; i < falloff_count; ++i)
        falloff[i] = 1.0f - static_cast<float>(i) / u16_max;
    update(no_lut_points);
}

template <std::size_t edge>
void lut<edge>::update(std::vector<lut_point> points)
{
    for (lut_point& point : points)
        derive_reach(point);

    constexpr float step = u16_max / static_cast<float>(edge - 1);
    auto entry = this->entries.begin();
    argb_float position;
    for (std::size_t i = 0; i < edge; ++i, position.r += step)
    {
        position.g = 0.0f;
        for (std::size_t j = 0; j < edge; ++j, position.g += step)
        {
            position.b = 0.0f;
            for (std::size_t k = 0; k < edge; ++k, position.b += step)
            {
                const argb_float to = moved(position, points, falloff);
                *entry++ = {1.0f, limited(to.r), limited(to.g), limited(to.b)};
            }
        }
    }
}

template class lut<lut_edge>;

} // namespace ov1
