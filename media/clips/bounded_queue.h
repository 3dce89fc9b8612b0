// A queue of limited size between two threads.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <utility>

namespace ov1::media
{

/// The producer waits while it is full, the consumer while it is empty. Items have weights; the queue is full when
/// their sum reaches its capacity, so one heavy item may exceed it. Any number of threads may use it; items leave in
/// the order in which they came.
template <typename T>
class bounded_queue
{
public:
    explicit bounded_queue(std::size_t capacity)
        : capacity(capacity)
    {
    }

    /// Waits for room. False if the queue was closed, also while waiting; the item is dropped then.
    [[nodiscard]] bool push(T item, std::size_t weight = 1)
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return weight_held < capacity || is_closed; });
        if (is_closed)
            return false;
        items.emplace_back(std::move(item), weight);
        weight_held += weight;
        changed.notify_all();
        return true;
    }

    /// Waits for an item. False if the queue was closed and is empty; the item is unchanged then.
    [[nodiscard]] bool pop(T& item)
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return !items.empty() || is_closed; });
        if (items.empty())
            return false;
        item = std::move(items.front().first);
        weight_held -= items.front().second;
        items.pop_front();
        changed.notify_all();
        return true;
    }

    /// Ends the input; the items in the queue can still be taken.
    void close()
    {
        const std::scoped_lock lock(mutex);
        is_closed = true;
        changed.notify_all();
    }

    /// Ends input and output, and drops the items.
    void abandon()
    {
        const std::scoped_lock lock(mutex);
        is_closed = true;
        items.clear();
        weight_held = 0;
        changed.notify_all();
    }

private:
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::pair<T, std::size_t>> items;
    std::size_t capacity;
    std::size_t weight_held = 0;
    bool is_closed = false;
};

} // namespace ov1::media
