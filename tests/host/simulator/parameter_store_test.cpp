#include "host/simulator/parameter_store.h"

#include <functional>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

constexpr std::uint32_t id = 2;

CMTime at(int frame) { return CMTimeMake(frame, 32); }

stored_parameter parameter(store_value default_value, double min = 0.0, double max = 0.0)
{
    return {.name = "P", .min = min, .max = max, .default_value = std::move(default_value)};
}

struct float_store : ::testing::Test
{
    float_store() { EXPECT_TRUE(store.declare(id, parameter(0.5, 0.0, 1.0))); }

    store_value value(int frame = 0) { return store.get(id, at(frame)).value(); }

    parameter_store store;
};

TEST(parameter_store, floats_and_colours_run_between_keyframes_and_others_hold)
{
    const struct
    {
        const char* name;
        store_value first, last, at_a_quarter;
    } rows[] = {{"float", 10.0, 20.0, 12.5},
                {"whole", 10, 20, 10},
                {"toggle", false, true, false},
                {"colour", store_color{0, 0, 1, 1}, store_color{1, 0, 0, 0.5}, store_color{0.25, 0, 0.75, 0.875}},
                {"archive", store_archive{1}, store_archive{2, 3}, store_archive{1}}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        parameter_store store;
        ASSERT_TRUE(store.declare(id, parameter(row.first)));
        store.set_keyframe(id, at(24), row.last);
        store.set_keyframe(id, at(8), row.first);
        EXPECT_EQ(store.get(id, at(0)), row.first) << "before the first keyframe";
        EXPECT_EQ(store.get(id, at(12)), row.at_a_quarter);
        EXPECT_EQ(store.get(id, at(24)), row.last) << "on the last keyframe";
        EXPECT_EQ(store.get(id, at(99)), row.last);
    }
}

TEST_F(float_store, set_writes_a_keyframe_only_if_there_are_keyframes)
{
    store.set(id, at(5), 0.25);
    EXPECT_EQ(value(99), store_value(0.25)) << "one value for all times";
    store.set_keyframe(id, at(0), 0.0);
    store.set(id, at(16), 1.0);
    EXPECT_EQ(value(8), store_value(0.5)) << "between two keyframes";
    store.set(id, CMTimeMake(1, 2), 0.5); // the same time as frame 16, in another timescale
    EXPECT_EQ(store.copy().at(id).keyframes.size(), 2u);
    EXPECT_EQ(value(8), store_value(0.25));
}

TEST(parameter_store, numbers_are_limited_to_bounds_that_exist)
{
    const struct
    {
        const char* name;
        stored_parameter declared;
        store_value set, stored;
    } rows[] = {
        {"float above", parameter(0.5, -1.0, 1.0), 7.0, 1.0},
        {"float below", parameter(0.5, -1.0, 1.0), -7.0, -1.0},
        {"index above", parameter(1, 0.0, 14.0), 15, 14},
        {"no bounds", parameter(0.5), 7.0, 7.0},
        {"colour", parameter(store_color(), 0.0, 1.0), store_color{2, -1, 0, 1}, store_color{2, -1, 0, 1}},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        parameter_store store;
        ASSERT_TRUE(store.declare(id, row.declared));
        EXPECT_TRUE(store.set(id, at(0), row.set));
        EXPECT_EQ(store.get(id, at(0)), row.stored);
        EXPECT_TRUE(store.set_keyframe(id, at(3), row.set));
        EXPECT_EQ(store.get(id, at(3)), row.stored);
    }
}

TEST_F(float_store, unknown_ids_and_other_types_are_refused)
{
    EXPECT_FALSE(store.get(3, at(0)));
    EXPECT_FALSE(store.set(3, at(0), 0.25));
    EXPECT_FALSE(store.set(id, at(0), 1)) << "an integer is no float slider's value";
    EXPECT_FALSE(store.set_keyframe(id, at(0), true));
    std::uint32_t flags = 7;
    EXPECT_FALSE(store.get_flags(3, flags) || store.set_flags(3, 0));
    EXPECT_EQ(flags, 7u);
    EXPECT_EQ(value(), store_value(0.5));
    for (const std::uint32_t refused : {0u, id, 9999u})
        EXPECT_FALSE(store.declare(refused, parameter(1.0))) << refused;
    EXPECT_TRUE(store.declare(1, parameter(1.0)) && store.declare(9998, parameter(1.0)));
}

TEST_F(float_store, an_undo_step_is_an_outermost_action_that_changed_something)
{
    const struct
    {
        const char* name;
        std::function<void(parameter_store&)> act;
        std::size_t steps;
    } rows[] = {
        {"two sets", [](auto& s) { s.set(id, at(0), 0.6), s.set(id, at(0), 0.7); }, 2},
        {"nested actions",
         [](auto& s)
         {
             s.begin_action(), s.set(id, at(0), 0.6);
             s.begin_action(), s.set(id, at(0), 0.7), s.end_action();
             s.set(id, at(0), 0.8), s.end_action();
         },
         1},
        {"an open action", [](auto& s) { s.begin_action(), s.set(id, at(0), 0.6); }, 0},
        {"the same value", [](auto& s) { s.set(id, at(0), 0.5); }, 0},
        {"limited to the same value", [](auto& s) { s.set(id, at(0), 1.0), s.set(id, at(0), 7.0); }, 1},
        {"a refused value", [](auto& s) { s.set(id, at(0), 3); }, 0},
        {"flags", [](auto& s) { s.set_flags(id, 2); }, 0},
        {"a keyframe", [](auto& s) { s.set_keyframe(id, at(0), 0.5); }, 1},
        {"an end without a begin", [](auto& s) { s.end_action(), s.set(id, at(0), 0.6); }, 1},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        parameter_store fresh;
        ASSERT_TRUE(fresh.declare(id, parameter(0.5, 0.0, 1.0)));
        row.act(fresh);
        EXPECT_EQ(fresh.get_undo_count(), row.steps);
        for (std::size_t i = 0; i < row.steps; ++i)
            EXPECT_TRUE(fresh.undo());
        EXPECT_FALSE(fresh.undo());
        if (row.steps > 0)
        {
            EXPECT_EQ(fresh.get(id, at(0)), store_value(0.5));
            EXPECT_TRUE(fresh.copy().at(id).keyframes.empty());
        }
    }
}

TEST_F(float_store, a_new_step_discards_the_steps_to_redo)
{
    store.set(id, at(0), 0.6);
    store.set(id, at(0), 0.7);
    ASSERT_TRUE(store.undo() && store.undo() && store.redo());
    EXPECT_EQ(value(), store_value(0.6));
    store.set(id, at(0), 0.8);
    EXPECT_FALSE(store.redo());
    ASSERT_TRUE(store.undo());
    EXPECT_EQ(value(), store_value(0.6));
}

TEST_F(float_store, restore_takes_parameters_with_the_same_id_name_and_type)
{
    stored_parameter saved = parameter(0.5, 0.0, 1.0);
    saved.value = 0.75;
    saved.keyframes[at(4)] = 0.25;
    saved.flags = 2;
    stored_parameter renamed = saved, retyped = saved;
    renamed.name = "Q";
    retyped.value = 1;
    const struct
    {
        const char* name;
        parameters_by_id saved;
        bool restored;
    } rows[] = {{"unknown id", {{3, saved}}, false},
                {"another name", {{id, renamed}}, false},
                {"another type", {{id, retyped}}, false},
                {"declared alike", {{id, saved}}, true}};
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        store.restore(row.saved);
        const stored_parameter now = store.copy().at(id);
        EXPECT_EQ(same_values(now, saved), row.restored);
        EXPECT_EQ(now.flags, 0u) << "flags belong to the session";
        EXPECT_EQ(store.copy().size(), 1u);
    }
    EXPECT_EQ(store.get_undo_count(), 0u);
}

} // namespace
} // namespace ov1
