// How brightly a scope shows a bin: nearly the logarithm of what it holds, so that thin traces are seen.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace ov1
{

/// log(1 + 10,000 d) / log(10,001) of a density d: 0 for 0, 1 for 1 and above, 0.08 for 1 / 10,000. Read from a table
/// of 32 steps an octave.
class trace_curve
{
public:
    static const trace_curve& get();

    /// 0..1; the density is not negative, and what lies below 2^-20 gives 0.
    float operator()(float density) const
    {
        const auto bits = static_cast<std::int32_t>(std::bit_cast<std::uint32_t>(density)) - least_bits;
        return table[static_cast<std::size_t>(std::clamp(bits >> step_bits, 0, last))];
    }

private:
    trace_curve();

    static constexpr int octaves = 20;
    static constexpr int step_bits = 18; // of a float's 23 bits of fraction: the upper 5 count
    static constexpr std::int32_t last = octaves << (23 - step_bits);
    static constexpr std::int32_t least_bits = (127 - octaves) << 23;

    std::array<float, last + 1> table;
};

} // namespace ov1
