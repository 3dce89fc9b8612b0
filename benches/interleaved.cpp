#include "interleaved.h"

#include <algorithm>
#include <chrono>

namespace ov1::bench
{

std::vector<double> median_seconds(const std::vector<contender>& contenders, int rounds)
{
    using clock = std::chrono::steady_clock;
    const std::size_t count = contenders.size();
    std::vector<std::vector<double>> times(count);
    for (const contender& each : contenders)
        each.run();
    for (int round = 0; round < rounds; ++round)
        for (std::size_t i = 0; i < count; ++i)
        {
            const std::size_t which = (i + static_cast<std::size_t>(round)) % count;
            const auto begin = clock::now();
            contenders[which].run();
            times[which].push_back(std::chrono::duration<double>(clock::now() - begin).count());
        }
    std::vector<double> medians;
    for (auto& each : times)
    {
        const auto middle = each.begin() + static_cast<std::ptrdiff_t>(each.size() / 2);
        std::nth_element(each.begin(), middle, each.end());
        medians.push_back(*middle);
    }
    return medians;
}

} // namespace ov1::bench
