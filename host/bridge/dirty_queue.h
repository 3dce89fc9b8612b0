// The parameters whose new values the video host has not received yet.
#pragma once

#include <mutex>
#include <set>

namespace ov1
{

/// A set of parameter indices. Any thread.
class dirty_queue
{
public:
    static constexpr int nothing = -1;

    void add(int index);
    /// Removes and returns the lowest index; `nothing` when the queue is empty.
    int pop();

private:
    std::mutex lock;
    std::set<int> indices;
};

} // namespace ov1
