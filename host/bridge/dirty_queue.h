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
    /// The answer of an empty queue; no parameter has this index.
    static constexpr int nothing = -1;

    /// Adds an index, unless it is queued already.
    void add(int index);
    /// Removes and returns the lowest index; `nothing` when the queue is empty.
    int pop();

private:
    std::mutex lock;
    std::set<int> indices;
};

} // namespace ov1
