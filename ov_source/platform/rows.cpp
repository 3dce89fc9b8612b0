#include "platform/rows.h"

#include <algorithm>
#include <atomic>

// Clang reports the sanitizer as a feature, GCC by a macro.
#if defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define OV1_UNDER_THREAD_SANITIZER
#endif
#elif defined(__SANITIZE_THREAD__)
#define OV1_UNDER_THREAD_SANITIZER
#endif

#if defined(__APPLE__)
#include <dispatch/dispatch.h>
#include <thread>
#elif defined(OV1_UNDER_THREAD_SANITIZER)
#include <thread>
#include <vector>
#else
#include <tbb/parallel_for.h>
#include <tbb/task_arena.h>
#endif

namespace ov1::row_pieces
{

namespace
{

/// Each worker takes the next piece until none is left, so that no more pieces than workers run at the same time.
struct row_work
{
    std::size_t rows;
    std::size_t rows_per_piece;
    const void* context;
    function piece;
    std::atomic<std::size_t> next_row = 0;
};

/// noexcept: no exception may pass through a thread pool.
void work(void* shared, std::size_t) noexcept
{
    auto& all = *static_cast<row_work*>(shared);
    for (;;)
    {
        // Relaxed: the number orders no other access. The end of run_workers makes the pieces' results visible.
        const std::size_t first = all.next_row.fetch_add(all.rows_per_piece, std::memory_order_relaxed);
        if (first >= all.rows)
            return;
        all.piece(all.context, first, std::min(first + all.rows_per_piece, all.rows));
    }
}

#if defined(__APPLE__)

// Workers come from the system's own pool, which adapts to the load of all programs.
unsigned usual_workers() { return std::max(1u, std::thread::hardware_concurrency()); }

void run_workers(std::size_t workers, row_work& shared)
{
    dispatch_apply_f(workers, dispatch_get_global_queue(QOS_CLASS_USER_INITIATED, 0), &shared, work);
}

#elif defined(OV1_UNDER_THREAD_SANITIZER)

// The sanitizer cannot see the synchronisation inside oneTBB, which is built without it, and would report false races.

// At least two, so that races are found on one processor as well.
unsigned usual_workers() { return std::max(2u, std::thread::hardware_concurrency()); }

void run_workers(std::size_t workers, row_work& shared)
{
    // Their destructors join them at the end.
    std::vector<std::jthread> others;
    for (std::size_t i = 1; i < workers; ++i)
        others.emplace_back(work, &shared, i);
    work(&shared, 0);
}

#else

unsigned usual_workers() { return static_cast<unsigned>(std::max(1, tbb::this_task_arena::max_concurrency())); }

void run_workers(std::size_t workers, row_work& shared)
{
    // One task per worker: they share the pieces among themselves.
    tbb::parallel_for(std::size_t{0}, workers, [&](std::size_t i) { work(&shared, i); }, tbb::simple_partitioner());
}

#endif

} // namespace

void run(std::size_t rows, std::size_t rows_per_piece, unsigned max_threads, const void* context, function piece)
{
    row_work shared{rows, rows_per_piece, context, piece};
    // Rounded up without an addition that could overflow.
    const std::size_t pieces = rows / rows_per_piece + (rows % rows_per_piece != 0);
    const std::size_t workers = std::min<std::size_t>(pieces, max_threads == 0 ? usual_workers() : max_threads);
    // No other thread is woken for a single piece.
    if (workers <= 1)
        work(&shared, 0);
    else
        run_workers(workers, shared);
}

} // namespace ov1::row_pieces
