// A queue between two threads that holds only so much.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <utility>

namespace ov1::media
{

/// The producer waits while it is full, the consumer while it is empty. Items have weights, and it is full when they
/// weigh as much as its capacity or more.
template <typename T>
class bounded_queue
{
public:
    explicit bounded_queue(std::size_t capacity)
        : capacity(capacity)
    {
    }

    /// False if the queue was closed: nobody will take the item.
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

    /// False if the queue was closed and is empty.
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

    /// Nothing more comes; what is in it can still be taken.
    void close()
    {
        const std::scoped_lock lock(mutex);
        is_closed = true;
        changed.notify_all();
    }

    /// Nothing more is taken either.
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
