// The brightness of a bin: approximately the logarithm of its count, so that thin traces are visible.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace ov1
{

/// log(1 + 10,000 d) / log(10,001) of a density d: 0 for 0, 1 for 1 and above, 0.08 for 1 / 10,000. Uses a table with
/// 32 steps per octave.
class trace_curve
{
public:
    /// The table of the process, made at the first call. Any thread.
    static const trace_curve& get();

    /// Returns 0..1. The density must not be negative; below 2^-20 the result is 0.
    float operator()(float density) const
    {
        // The bits of positive floats are in the order of their values, and the upper ones are the logarithm in steps.
        const auto bits = static_cast<std::int32_t>(std::bit_cast<std::uint32_t>(density)) - least_bits;
        return table[static_cast<std::size_t>(std::clamp(bits >> step_bits, 0, last))];
    }

private:
    trace_curve();

    // The table covers densities from 2^-20 to 1.
    static constexpr int octaves = 20;
    static constexpr int step_bits = 18; // drops all but the upper 5 of a float's 23 fraction bits
    static constexpr std::int32_t last = octaves << (23 - step_bits);
    // the bits of 2^-20
    static constexpr std::int32_t least_bits = (127 - octaves) << 23;

    std::array<float, last + 1> table;
};

} // namespace ov1
