#include "support/picture_file.h"
#include "tools/artwork/arc_ramps.h"

#include <cmath>
#include <functional>

namespace ov1
{
namespace
{

TEST(arc_pictures, the_arrow_points_at_the_colour_of_its_value)
{
    engine_colours engine;
    const auto of_engine = [&](rgb_double (*ramp)(engine_colours&, double))
    { return [&engine, ramp](double place) { return ramp(engine, place); }; };
    const struct
    {
        const char* name;
        bool left;
        double inset;
        std::function<rgb_double(double)> ramp;
    } arcs[] = {
        {"global_saturation_background.png", true, 4, of_engine(chroma_ramp)},
        {"gray_slider_background_left.png", true, 9, lightness_ramp},
        {"gray_slider_background_right.png", false, 4, lightness_ramp},
        {"skin_brightness_slider_background_right.png", false, 4, of_engine(skin_brightness_ramp)},
        {"skin_protection_slider_background_left.png", true, 9, of_engine(protection_ramp)},
    };
    for (const auto& arc : arcs)
    {
        SCOPED_TRACE(arc.name);
        const picture_file file(arc.name);
        const double width = file.width / 2.0, height = file.height / 2.0;
        // As the control places its arrow: the pixel a point beyond the tip, from the pivot on the view's edge.
        const double reach = std::asin((height / 2.0 - arc.inset) / width), beyond = width - 3.0 + 1.0;
        const auto beyond_tip = [&](double angle)
        {
            const double away = beyond * std::cos(angle) * 2.0, up = beyond * std::sin(angle) * 2.0;
            return file.at_pixel(static_cast<int>(arc.left ? file.width - away : away),
                                 static_cast<int>(file.height / 2.0 - up));
        };
        for (const double place : {0.0, 0.2, 0.5, 0.9, 1.0})
        {
            SCOPED_TRACE(place);
            const argb_float got = beyond_tip(reach * (2.0 * place - 1.0));
            const rgb_double wanted = arc.ramp(place);
            constexpr double near = 3.0 / 255.0; // half a code, and what a colour changes along a pixel
            EXPECT_EQ(got.a, 1.0f);
            EXPECT_NEAR(got.r, wanted.r, near);
            EXPECT_NEAR(got.g, wanted.g, near);
            EXPECT_NEAR(got.b, wanted.b, near);
        }
        // Two arrows part by 15 degrees at most, and each still points at the band; well past them it ends.
        constexpr double degree = 0.017453292519943295;
        EXPECT_EQ(beyond_tip(reach + (arc.inset == 9 ? 7.5 * degree : 0)).a, 1.0f);
        EXPECT_EQ(beyond_tip(1.2).a, 0.0f);
    }
}

} // namespace
} // namespace ov1
