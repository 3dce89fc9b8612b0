// Times of several pieces of work, taken in turns so that a slow moment of the machine hits all of them.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace ov1::bench
{

struct contender
{
    std::string name;
    std::function<void()> run;
    bool one_thread = true;
};

/// The median time of each in seconds, over so many rounds after one that does not count. Every round runs each once,
/// beginning with another one each time. On one thread it is processor time, so that other programs take as little part
/// as they can; on several it is time by the clock.
std::vector<double> median_seconds(const std::vector<contender>& contenders, int rounds);

} // namespace ov1::bench
