// The simulated host's own keeping: keyframes, undo, texts, and times as the system orders them.
#include "host/simulator/parameter_store.h"
#include "host/simulator/value_text.h"

#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

store_value value_at(const parameter_store& store, int frame, store_value kind)
{
    EXPECT_TRUE(store.get(2, CMTimeMake(frame, 32), kind));
    return kind;
}

TEST(parameter_store, numbers_run_between_keyframes_and_others_hold)
{
    const struct
    {
        const char* name;
        store_value first, last, half_way;
    } rows[] = {{"float", 10.0, 20.0, 15.0},
                {"whole", 10, 20, 10},
                {"toggle", false, true, false},
                {"colour", store_color{0, 0, 1, 1}, store_color{1, 0, 0, 0.5}, store_color{0.5, 0, 0.5, 0.75}}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        parameter_store store;
        ASSERT_TRUE(store.declare(2, {"P", 0, 0, 0, {}, row.first, {}, {}}));
        store.set_keyframe(2, CMTimeMake(20, 32), row.last);
        store.set_keyframe(2, CMTimeMake(10, 32), row.first);
        EXPECT_EQ(value_at(store, 0, row.first), row.first);
        EXPECT_EQ(value_at(store, 15, row.first), row.half_way);
        EXPECT_EQ(value_at(store, 99, row.first), row.last);
    }
}

TEST(parameter_store, an_action_is_one_step_of_undo)
{
    parameter_store store;
    ASSERT_TRUE(store.declare(2, {"P", 0, 0, 1, {}, 0.5, {}, {}}));
    EXPECT_FALSE(store.declare(2, {}));
    EXPECT_FALSE(store.declare(0, {}));
    store.begin_action();
    store.set(2, kCMTimeZero, 0.75);
    store.set(2, kCMTimeZero, 7.0);
    store.end_action();
    EXPECT_EQ(value_at(store, 0, 0.0), store_value(1.0)) << "limited";
    EXPECT_FALSE(store.set(2, kCMTimeZero, 3)) << "another kind";
    ASSERT_TRUE(store.undo());
    EXPECT_EQ(value_at(store, 0, 0.0), store_value(0.5));
    EXPECT_FALSE(store.undo());
    ASSERT_TRUE(store.redo());
    EXPECT_EQ(value_at(store, 0, 0.0), store_value(1.0));
}

TEST(value_text, reads_back_and_refuses_the_rest)
{
    for (const store_value& value :
         {store_value(0.1), store_value(-3), store_value(true), store_value(store_color{1, 0.1, 0, 0.5})})
    {
        store_value back;
        EXPECT_TRUE(value_of_text(text_of_value(value), back)) << text_of_value(value);
        EXPECT_EQ(back, value);
    }
    store_value untouched = 7;
    for (const char* text :
         {"", "float", "float x", "float 1 2", "float nan", "int 1.5", "bool 2", "color 1 2 3", "word 1"})
        EXPECT_FALSE(value_of_text(text, untouched)) << text;
    EXPECT_EQ(untouched, store_value(7));
}

TEST(times, compare_as_fractions_by_rank_and_by_epoch)
{
    const CMTime ordered[] = {kCMTimeNegativeInfinity,
                              CMTimeMake(-1, 3),
                              kCMTimeZero,
                              CMTimeMake(1001, 30001),
                              CMTimeMake(1001, 30000),
                              CMTimeMake(std::numeric_limits<std::int64_t>::max(), 1),
                              {0, 1, kCMTimeFlags_Valid, 1},
                              kCMTimeIndefinite,
                              kCMTimePositiveInfinity,
                              kCMTimeInvalid};
    for (std::size_t i = 0; i < std::size(ordered); ++i)
        for (std::size_t k = 0; k < std::size(ordered); ++k)
            EXPECT_EQ(CMTimeCompare(ordered[i], ordered[k]), i < k ? -1 : i > k ? 1 : 0) << i << ' ' << k;
    EXPECT_EQ(CMTimeCompare(CMTimeMake(1, 2), CMTimeMake(2, 4)), 0);
    EXPECT_EQ(CMTimeCompare(CMTimeMake(1, 0), kCMTimeInvalid), 0);
}

} // namespace
} // namespace ov1
