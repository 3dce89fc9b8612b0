#include "tools/artwork/pad_response.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ov1
{

namespace
{

rgb_double between(const rgb_double& from, const rgb_double& to, double fraction)
{
    return {from.r + (to.r - from.r) * fraction, from.g + (to.g - from.g) * fraction,
            from.b + (to.b - from.b) * fraction};
}

} // namespace

pad_response::pad_response(engine_colours& engine, parameter_index angle, parameter_index strength,
                           const std::vector<rgb_double>& colours)
{
    for (std::size_t a = 0; a < angles; ++a)
        for (std::size_t s = 0; s <= strengths; ++s)
            graded.push_back(engine.graded(
                colours, std::array{parameter_setting{angle, 360.0 * static_cast<double>(a) / angles},
                                    parameter_setting{strength, 100.0 * static_cast<double>(s) / strengths}}));
}

const rgb_double& pad_response::point(std::size_t colour, std::size_t angle, std::size_t strength) const
{
    // 360 degrees are 0 again; strengths have a point at both ends.
    return graded[angle % angles * (strengths + 1) + strength][colour];
}

rgb_double pad_response::at(std::size_t colour, double angle, double strength) const
{
    const double around = std::clamp(angle, 0.0, 360.0) / 360.0 * angles;
    const double out = std::clamp(strength, 0.0, 100.0) / 100.0 * strengths;
    const auto a = static_cast<std::size_t>(around);
    // At full strength the last interval is used, at its end.
    const auto s = std::min(static_cast<std::size_t>(out), strengths - 1);
    const auto along = [&](std::size_t i)
    { return between(point(colour, i, s), point(colour, i, s + 1), out - static_cast<double>(s)); };
    return between(along(a), along(a + 1), around - static_cast<double>(a));
}

} // namespace ov1
