#include "platform/rows.h"

#include <atomic>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace ov1
{
namespace
{

TEST(rows, every_row_is_in_exactly_one_piece)
{
    for (const std::size_t rows : {0, 1, 15, 16, 17, 33, 1000})
        for (const std::size_t rows_per_piece : {1, 7, 16, 5000})
            for (const unsigned max_threads : {0u, 1u, 2u, 5u})
            {
                SCOPED_TRACE(testing::Message() << rows << " by " << rows_per_piece << " on " << max_threads);
                std::vector<int> calls(rows, 0); // no atomics: pieces share no row
                std::atomic<int> odd = 0;
                for_each_row_piece(rows, rows_per_piece, max_threads,
                                   [&](std::size_t first, std::size_t end)
                                   {
                                       odd += first % rows_per_piece != 0 || first >= end;
                                       odd += end - first != rows_per_piece && end != rows;
                                       for (std::size_t row = first; row < end; ++row)
                                           ++calls[row];
                                   });
                EXPECT_EQ(calls, std::vector<int>(rows, 1));
                EXPECT_EQ(odd, 0);
            }
}

TEST(rows, no_more_threads_run_than_allowed)
{
    for (const unsigned max_threads : {1u, 2u, 3u})
    {
        std::atomic<unsigned> running = 0, too_many = 0;
        for_each_row_piece(2000, 1, max_threads,
                           [&](std::size_t, std::size_t)
                           {
                               too_many += ++running > max_threads;
                               --running;
                           });
        EXPECT_EQ(too_many, 0u) << max_threads;
    }
}

TEST(rows, a_small_picture_stays_on_the_callers_thread)
{
    const auto caller = std::this_thread::get_id();
    std::size_t pieces = 0;
    for_each_picture_piece(127, 129, 0, // one pixel fewer than 16 K
                           [&](std::size_t, std::size_t)
                           {
                               ++pieces;
                               EXPECT_EQ(std::this_thread::get_id(), caller);
                           });
    EXPECT_EQ(pieces, 9u);
}

TEST(rows, calls_may_be_nested)
{
    std::atomic<std::size_t> sum = 0;
    for_each_row_piece(
        20, 1, 0, [&](std::size_t outer, std::size_t)
        { for_each_row_piece(30, 4, 0, [&](std::size_t first, std::size_t end) { sum += outer * (end - first); }); });
    EXPECT_EQ(sum, 190u * 30);
}

} // namespace
} // namespace ov1
