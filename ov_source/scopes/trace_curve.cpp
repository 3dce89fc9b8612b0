#include "scopes/trace_curve.h"

#include <cmath>

namespace ov1
{

namespace
{

constexpr double gain = 10'000;

}

trace_curve::trace_curve()
{
    table[0] = 0;
    for (std::int32_t i = 1; i <= last; ++i)
    {
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
