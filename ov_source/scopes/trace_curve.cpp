#include "scopes/trace_curve.h"

#include <cmath>

namespace ov1
{

namespace
{

/// Sets how visible thin traces are: a larger gain makes small densities brighter.
constexpr double gain = 10'000;

} // namespace

trace_curve::trace_curve()
{
    // All densities below the table's range, 0 included.
    table[0] = 0;
    for (std::int32_t i = 1; i <= last; ++i)
    {
        // The least float with these upper bits. The last one is 1, so that a density of 1 gives exactly 1.
        const auto density = std::bit_cast<float>(static_cast<std::uint32_t>(least_bits + (i << step_bits)));
        table[static_cast<std::size_t>(i)] = static_cast<float>(std::log1p(gain * density) / std::log1p(gain));
    }
}

const trace_curve& trace_curve::get()
{
    static const trace_curve curve;
    return curve;
}

} // namespace ov1
