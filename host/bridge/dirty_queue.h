// Which parameters changed since the video host last heard of them.
#pragma once

#include <mutex>
#include <set>

namespace ov1
{

/// Places of parameters, each at most once. Any thread.
class dirty_queue
{
public:
    static constexpr int nothing = -1;

    void add(int place);
    /// Takes the lowest place out; nothing when there is none.
    int pop();

private:
    std::mutex lock;
    std::set<int> places;
};

} // namespace ov1
