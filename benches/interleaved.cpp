#include "interleaved.h"

#include <algorithm>
#include <time.h>

namespace ov1::bench
{

namespace
{

double seconds(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

double time_of(const contender& each)
{
    const clockid_t clock = each.one_thread ? CLOCK_THREAD_CPUTIME_ID : CLOCK_MONOTONIC;
    const double begin = seconds(clock);
    each.run();
    return seconds(clock) - begin;
}

} // namespace

std::vector<double> median_seconds(const std::vector<contender>& contenders, int rounds)
{
    const std::size_t count = contenders.size();
    std::vector<std::vector<double>> times(count);
    // Fills caches and allocates; not counted.
    for (const contender& each : contenders)
        each.run();
    for (int round = 0; round < rounds; ++round)
        for (std::size_t i = 0; i < count; ++i)
        {
            // Each round begins with another contender, so that none always runs after the same one.
            const std::size_t which = (i + static_cast<std::size_t>(round)) % count;
            times[which].push_back(time_of(contenders[which]));
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
