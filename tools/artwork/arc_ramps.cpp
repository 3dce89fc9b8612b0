#include "tools/artwork/arc_ramps.h"

#include "tools/artwork/anchor_colours.h"

#include <array>

namespace ov1
{

namespace
{

rgb_double graded_anchor(engine_colours& engine, const rgb_double& anchor,
                         std::initializer_list<parameter_setting> values)
{
    return engine.graded(std::span(&anchor, 1), std::span(values.begin(), values.size())).front();
}

} // namespace

rgb_double lightness_ramp(double position)
{
    // Not quite black and white, so that the arc differs from the panel and the arrow from the arc.
    constexpr double darkest = 0.10, lightest = 0.90;
    const double level = darkest + (lightest - darkest) * position;
    return {level, level, level};
}

rgb_double chroma_ramp(engine_colours& engine, double position)
{
    // Half the chroma that its lightness allows: +100 % doubles it, so that the arc's top is the most colourful.
    const rgb_double half_orange = rgb_of({25'000, 50'000, 50'000});
    return graded_anchor(engine, half_orange, {{parameter_index::global_chroma, 200.0 * position - 100.0}});
}

rgb_double skin_brightness_ramp(engine_colours& engine, double position)
{
    return graded_anchor(engine, skin_anchor, {{parameter_index::skin_tone_brightness, 200.0 * position - 100.0}});
}

rgb_double protection_ramp(engine_colours& engine, double position)
{
    constexpr double paler = 180.0; // degrees on the skin pad
    return graded_anchor(
        engine, skin_anchor,
        {{parameter_index::skin_angle, paler}, {parameter_index::skin_tone_strength, 100.0 * (1.0 - position)}});
}

} // namespace ov1
