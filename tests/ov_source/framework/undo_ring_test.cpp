#include "framework/undo_ring.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

namespace ov1
{
namespace
{

undo_ring::bytes mark(int n) { return {static_cast<std::uint8_t>(n), static_cast<std::uint8_t>(n >> 8)}; }

undo_ring ring_of(int commits)
{
    undo_ring ring;
    for (int i = 0; i <= commits; ++i)
        ring.store(mark(i), i < commits);
    return ring;
}

TEST(undo_ring, forty_commits_keep_thirty_two)
{
    undo_ring ring = ring_of(40);
    EXPECT_EQ(ring.get_top(), 40);
    EXPECT_EQ(ring.get_depth(), 32);
    for (int position = 39; position > 8; --position)
        ASSERT_EQ(ring.step_back(), mark(position));
    EXPECT_EQ(ring.step_back(), mark(40)) << "position 40 has overwritten the slot of position 8";
    EXPECT_EQ(ring.step_back(), std::nullopt);
    EXPECT_EQ(ring.store(mark(50), true), 8);
    EXPECT_EQ(ring.range(), (undo_range{8, 9, 9})) << "nothing below is intact";
    EXPECT_EQ(ring_of(100).range(), (undo_range{69, 100, 100})) << "never an overwritten step";
}

TEST(undo_ring, steps_and_jumps_reach_the_bottom_of_the_ring)
{
    // commits, lowest position: (top - depth) mod 32
    for (const auto& [commits, lowest] : {std::pair(0, 0), {1, 0}, {32, 0}, {33, 1}, {63, 31}, {64, 0}, {70, 6}})
    {
        SCOPED_TRACE(commits);
        undo_ring ring = ring_of(commits);
        for (const int beyond : {lowest - 1, commits, commits + 1})
            EXPECT_EQ(ring.jump(beyond), std::nullopt);
        EXPECT_EQ(ring.get_position(), commits);
        for (int step = commits; step > lowest; --step)
            EXPECT_NE(ring.step_back(), std::nullopt);
        EXPECT_EQ(ring.step_back(), std::nullopt);
        EXPECT_EQ(ring.jump(commits), commits == 0 ? std::nullopt : std::optional(mark(commits)));
    }
}

TEST(undo_ring, every_position_of_the_range_has_its_own_state)
{
    std::mt19937 random(20240611);
    undo_ring ring;
    std::map<int, int> states = {{0, 0}};
    for (int gesture = 1; gesture < 20000; ++gesture)
    {
        const undo_range range = ring.range();
        ASSERT_LE(range.newest - range.oldest, 31);
        const int steps[] = {-1, -1, -1, 1, range.oldest - range.position + static_cast<int>(random() % 32)};
        const unsigned choice = random() % 8;
        if (choice >= 5)
        {
            ring.store(mark(states[range.position]), true);
            ring.store(mark(states[range.position + 1] = gesture), false);
        }
        else if (const int to = range.position + steps[choice]; to >= range.oldest && to <= range.newest)
        {
            ASSERT_EQ(ring.jump(to).value_or(mark(states[range.position])), mark(states[to])) << gesture;
        }
    }
}

} // namespace
} // namespace ov1
