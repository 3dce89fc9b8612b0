#include "platform/rows.h"

#include <algorithm>
#include <atomic>

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

void work(void* shared, std::size_t) noexcept
{
    auto& all = *static_cast<row_work*>(shared);
    for (;;)
    {
        const std::size_t first = all.next_row.fetch_add(all.rows_per_piece, std::memory_order_relaxed);
        if (first >= all.rows)
            return;
        all.piece(all.context, first, std::min(first + all.rows_per_piece, all.rows));
    }
}

#if defined(__APPLE__)

unsigned usual_workers() { return std::max(1u, std::thread::hardware_concurrency()); }

void run_workers(std::size_t workers, row_work& shared)
{
    dispatch_apply_f(workers, dispatch_get_global_queue(QOS_CLASS_USER_INITIATED, 0), &shared, work);
}

#elif defined(OV1_UNDER_THREAD_SANITIZER)

// The sanitizer cannot see the synchronisation inside oneTBB, which is built without it, and would report false races.

unsigned usual_workers() { return std::max(2u, std::thread::hardware_concurrency()); }

void run_workers(std::size_t workers, row_work& shared)
{
    std::vector<std::jthread> others;
    for (std::size_t i = 1; i < workers; ++i)
        others.emplace_back(work, &shared, i);
    work(&shared, 0);
}

#else

unsigned usual_workers() { return static_cast<unsigned>(std::max(1, tbb::this_task_arena::max_concurrency())); }

void run_workers(std::size_t workers, row_work& shared)
{
    tbb::parallel_for(std::size_t{0}, workers, [&](std::size_t i) { work(&shared, i); }, tbb::simple_partitioner());
}

#endif

} // namespace

void run(std::size_t rows, std::size_t rows_per_piece, unsigned max_threads, const void* context, function piece)
{
    row_work shared{rows, rows_per_piece, context, piece};
    const std::size_t pieces = rows / rows_per_piece + (rows % rows_per_piece != 0);
    const std::size_t workers = std::min<std::size_t>(pieces, max_threads == 0 ? usual_workers() : max_threads);
    if (workers <= 1)
        work(&shared, 0);
    else
        run_workers(workers, shared);
}

} // namespace ov1::row_pieces
