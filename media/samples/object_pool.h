// Objects that several threads use in turn, one thread at a time.
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace ov1::media
{

/// Makes an object when none is free, so there are as many as threads have asked for at a time. Objects are destroyed
/// with the pool. May be used from any thread.
template <typename T>
class object_pool
{
public:
    /// The function may be called from several threads at once.
    explicit object_pool(std::function<std::unique_ptr<T>()> make)
        : make(std::move(make))
    {
    }

    /// Gives its object back at its end, on any thread. The pool outlives it.
    class loan
    {
    public:
        loan(object_pool& pool, std::unique_ptr<T> object)
            : pool(pool)
            , object(std::move(object))
        {
        }
        ~loan() { pool.give_back(std::move(object)); }
        loan(const loan&) = delete;
        loan& operator=(const loan&) = delete;

        T& operator*() const { return *object; }
        T* operator->() const { return object.get(); }

    private:
        object_pool& pool;
        std::unique_ptr<T> object;
    };

    /// A free object, or a new one; its state is what its last user left.
    loan take()
    {
        {
            const std::scoped_lock lock(mutex);
            if (!free.empty())
            {
                auto object = std::move(free.back());
                free.pop_back();
                return loan(*this, std::move(object));
            }
        }
        return loan(*this, make()); // without the lock: making one may take long
    }

private:
    void give_back(std::unique_ptr<T> object)
    {
        const std::scoped_lock lock(mutex);
        free.push_back(std::move(object));
    }

    std::function<std::unique_ptr<T>()> make;
    std::mutex mutex;
    std::vector<std::unique_ptr<T>> free;
};

} // namespace ov1::media
