#include "tools/looks/shaping.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

namespace
{

/// Where x lies between from and to, limited to 0..1.
double part_of(double x, double from, double to) { return std::clamp((x - from) / (to - from), 0.0, 1.0); }

/// One channel. tanh has slope 1 at 0 and never reaches 1: small steps pass unchanged, and large ones use less than the
/// share k of the room.
double rolled_off(double from, double target, double k)
{
    const double step = target - from;
    const double reach = k * (step > 0.0 ? 1.0 - from : from);
    return reach > 0.0 ? from + reach * std::tanh(step / reach) : from;
}

} // namespace

double ramp(double x, double from, double to)
{
    const double t = part_of(x, from, to);
    return 0.5 * t + 0.5 * t * t * (3.0 - 2.0 * t);
}

double smoothstep(double x, double from, double to)
{
    const double t = part_of(x, from, to);
    return t * t * t * (t * (t * 6.0 - 15.0) + 10.0);
}

double grid_distance_from_grey(const rgb_double& code)
{
    return 16.0 * (std::max({code.r, code.g, code.b}) - std::min({code.r, code.g, code.b}));
}

rgb_double rolled_off(const rgb_double& from, const rgb_double& target, double k)
{
    return {rolled_off(from.r, target.r, k), rolled_off(from.g, target.g, k), rolled_off(from.b, target.b, k)};
}

} // namespace ov1
