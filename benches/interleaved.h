// Times several pieces of work in turns, so that a slow moment of the machine affects all of them.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace ov1::bench
{

/// A piece of work, called once per round.
struct contender
{
    std::string name;
    std::function<void()> run;
    bool one_thread = true;
};

/// The median time of each contender in seconds, over `rounds` rounds after one that is not counted. Every round runs
/// each contender once and begins with another one. Contenders on one thread are timed in processor time, which other
/// programs disturb least; those on several threads by the clock.
std::vector<double> median_seconds(const std::vector<contender>& contenders, int rounds);

} // namespace ov1::bench
