#include "scopes/tent_axis.h"

#include <algorithm>
#include <cmath>

namespace ov1
{

tent_axis::tent_axis(std::size_t bins, std::size_t pixels, double first, double step)
{
    // Half the width of the tent: one bin to interpolate, one step to average, so that every bin counts.
    const double reach = std::max(1.0, std::abs(step));
    const double last_bin = static_cast<double>(bins) - 1;
    taps.reserve(pixels);
    for (std::size_t i = 0; i < pixels; ++i)
    {
        const double wanted = first + step * static_cast<double>(i);
        // Beyond half a bin outside the bins there is nothing to show; nearer, the outermost bin continues.
        if (wanted < -0.5 || wanted > last_bin + 0.5)
        {
            taps.push_back({0, 0, 0});
            continue;
        }
        const double place = std::clamp(wanted, 0.0, last_bin);
        const auto lowest = static_cast<std::size_t>(std::max(0.0, std::ceil(place - reach)));
        const auto highest = static_cast<std::size_t>(std::min(last_bin, std::floor(place + reach)));
        const tap_list tap{lowest, highest - lowest + 1, weights.size()};
        // Rounding can make the outermost weight slightly negative.
        const auto weight_of = [&](std::size_t k)
        { return std::max(0.0, reach - std::abs(static_cast<double>(k) - place)); };
        // Weights are divided by their sum, because a tent that is cut off at an end has less of it.
        double sum = 0;
        for (std::size_t k = lowest; k <= highest; ++k)
            sum += weight_of(k);
        for (std::size_t k = lowest; k <= highest; ++k)
            weights.push_back(static_cast<float>(weight_of(k) / sum));
        taps.push_back(tap);
    }
}

void tent_axis::at_all(std::size_t pixel, const float* rows, std::size_t width, float* sums) const
{
    // The outer loop is over the taps, so that the inner loop adds consecutive floats.
    const tap_list& tap = taps[pixel];
    std::fill_n(sums, width, 0.f);
    for (std::size_t i = 0; i < tap.count; ++i)
    {
        const float weight = weights[tap.offset + i];
        const float* const row = rows + (tap.first + i) * width;
        for (std::size_t x = 0; x < width; ++x)
            sums[x] += weight * row[x];
    }
}

} // namespace ov1
