#include "plain_code.h"

#include <algorithm>
#include <array>

namespace ov1::bench
{

namespace
{

/// One virtual call and eight checked reads for each pixel.
class plain_renderer : public pixel_renderer
{
public:
    explicit plain_renderer(const lut_argb<lut_edge>& table)
        : table(table)
    {
    }

    void render_pixel(std::size_t, std::size_t, const argb_float& in, argb_float& out) const override
    {
        out = trilinear(grid_position_of<lut_edge>(in.r), grid_position_of<lut_edge>(in.g),
                        grid_position_of<lut_edge>(in.b),
                        [&](std::size_t r, std::size_t g, std::size_t b) -> const argb_float&
                        { return table.get_direct(r, g, b); });
    }

private:
    /// A copy, so that the renderer does not depend on the life of the original.
    lut_argb<lut_edge> table;
};

} // namespace

std::unique_ptr<pixel_renderer> make_plain_renderer(const lut_argb<lut_edge>& table)
{
    return std::make_unique<plain_renderer>(table);
}

argb_float tetrahedral(const lut_argb<lut_edge>& table, const argb_float& c)
{
    struct axis
    {
        double fraction;
        std::size_t step;
    };
    std::size_t at = 0;
    std::array<axis, 3> axes;
    const float channels[] = {c.r, c.g, c.b};
    const std::size_t steps[] = {lut_edge * lut_edge, lut_edge, 1};
    for (std::size_t i = 0; i < 3; ++i)
    {
        const double x = std::clamp(channels[i] * 16.0, 0.0, 16.0);
        const auto lower = std::min(static_cast<std::size_t>(x), lut_edge - 2);
        axes[i] = {x - static_cast<double>(lower), steps[i]};
        at += lower * steps[i];
    }
    // The order of the fractions chooses one of the six tetrahedra of the cell.
    std::sort(axes.begin(), axes.end(), [](const axis& a, const axis& b) { return a.fraction > b.fraction; });

    // From the lower corner along the axes, the largest fraction first: four corners, weighted by the differences
    // between consecutive fractions.
    const auto& entries = table.get_entries();
    double weight = 1.0 - axes[0].fraction;
    double r = 0.0, g = 0.0, b = 0.0;
    for (std::size_t corner = 0;; ++corner)
    {
        r += weight * entries[at].r;
        g += weight * entries[at].g;
        b += weight * entries[at].b;
        if (corner == 3)
            break;
        at += axes[corner].step;
        weight = axes[corner].fraction - (corner < 2 ? axes[corner + 1].fraction : 0.0);
    }
    return {1.0f, static_cast<float>(r), static_cast<float>(g), static_cast<float>(b)};
}

} // namespace ov1::bench
