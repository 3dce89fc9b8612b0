#include "framework/parameters/cparameter_v1.h"

#include "support/test_component.h"

#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float inf = std::numeric_limits<float>::infinity();
constexpr int low = std::numeric_limits<int>::min();
constexpr int high = std::numeric_limits<int>::max();

TEST(cparameter_v1, clamps_then_notifies_host_and_view)
{
    stage s;
    const std::shared_ptr<iparameter_v1> amount = s.component->amount;
    const std::tuple<float, bool, float, std::size_t> rows[] = {
        {150, true, 100, 1}, {100, true, 100, 0}, {100, false, 100, 0}, {-1, false, 0, 1}, {7, true, 7, 1}};
    for (const auto& [candidate, edit, value, view_told] : rows)
    {
        SCOPED_TRACE(candidate);
        s.component->amount->set_value(candidate, edit);
        EXPECT_EQ(s.component->amount->get_value(), value);
        EXPECT_EQ(s.host->events.take(),
                  (sent_events{{edit ? event_kind::edited : event_kind::changed, make_uid("Amount")}}));
        EXPECT_EQ(s.view->controls.take(), std::vector(view_told, std::pair(amount, edit)));
    }
}

TEST(cparameter_v1, ignores_invalid_values_and_notifies_nobody)
{
    stage s;
    test_component& c = *s.component;
    const auto before = c.get_state();
    param_value other_kind = c.amount->get_param_value();
    other_kind.type = param_type::integral;
    param_value no_kind = c.tint->get_param_value();
    no_kind.type = static_cast<param_type>(4);
    c.amount->set_param_value(other_kind, true);
    c.tint->set_param_value(no_kind, true);
    c.tint->set_value({0, 0, 1.0001f, 0}, true);
    c.amount->set_value_normalized(nan, true);
    c.steps->set_value_normalized(nan, true);
    EXPECT_EQ(c.get_state(), before);
    EXPECT_TRUE(s.host->events.take().empty() && s.view->controls.take().empty());
}

TEST(cparameter_v1, ignores_every_set_while_disabled)
{
    stage s;
    cparameter_continuous_v1& amount = *s.component->amount;
    amount.set_value(20, false);
    s.host->events.take();
    for (int i = 0; i < 2; ++i)
        amount.set_enabled(false);
    amount.set_value(30, true);
    amount.set_value_normalized(0.75f, true);
    amount.reset_to_default();
    EXPECT_EQ(amount.get_value(), 20);
    EXPECT_TRUE(amount.get_is_reset()) << "true although the set was ignored";
    EXPECT_EQ(s.host->events.take(), (sent_events{{event_kind::enabled_changed, make_uid("Amount")}}))
        << "notified once";
    amount.set_enabled(true);
    amount.set_value(30, true);
    EXPECT_EQ(amount.get_value(), 30);
}

TEST(cparameter_v1, knows_whether_it_is_reset_default_and_dirty)
{
    cparameter_continuous_v1 amount({}, "Amount", 0, 100, 50);
    const struct
    {
        float value; ///< negative: a reset
        bool reset, is_default, dirty;
    } rows[] = {{50, true, true, false}, {60, false, false, true}, {60, false, false, false}, {50, false, true, true},
                {-1, true, true, false}, {60, false, false, true}, {-1, true, true, true}};
    EXPECT_TRUE(amount.get_is_reset() && amount.get_is_default() && !amount.is_dirty());
    for (const auto& row : rows)
    {
        SCOPED_TRACE(&row - rows);
        row.value < 0 ? amount.reset_to_default() : amount.set_value(row.value, false);
        EXPECT_EQ(amount.get_is_reset(), row.reset);
        EXPECT_EQ(amount.get_is_default(), row.is_default);
        EXPECT_EQ(amount.is_dirty(), row.dirty);
    }
    EXPECT_EQ(amount.get_previous_param_value().value.as_continuous(), 60);
    EXPECT_TRUE(cparameter_v1({}, "Bare", param_type::color).is_dirty()) << "its previous record is unset";
    cparameter_continuous_v1 beyond({}, "Beyond", 0, 5, 7);
    EXPECT_EQ(beyond.get_value(), 5);
    EXPECT_FALSE(beyond.get_is_default() || beyond.is_dirty());
}

TEST(cparameter_v1, takes_default_and_bounds_from_the_candidate)
{
    cparameter_integral_v1 steps({}, "Steps", -10, 10, 0);
    param_value v = steps.get_param_value();
    v.value = v.default_value = param_cell::of(70);
    v.max = param_bound::of(90);
    steps.set_param_value(v, false);
    EXPECT_TRUE(steps.get_is_default());
    steps.set_value(200, false);
    EXPECT_EQ(steps.get_value(), 90);
}

TEST(cparameter_v1, maps_normalized_values_to_its_bounds)
{
    const std::tuple<int, int, float, int> rows[] = {{-10, 10, 0.26f, -4}, {-10, 10, 0.74f, 4},   {-10, 10, 1.5f, 10},
                                                     {-10, 10, -1, -10},   {-10, 10, inf, 10},    {low, high, 0, low},
                                                     {low, high, 1, high}, {low, high, -inf, low}};
    for (const auto& [min, max, n, value] : rows)
    {
        cparameter_integral_v1 whole({}, "Whole", min, max, 1);
        whole.set_value_normalized(n, false);
        EXPECT_EQ(whole.get_value(), value) << n;
    }
    EXPECT_EQ(cparameter_integral_v1({}, "Whole", -10, 10, -5).get_value_normalized(), 0.25f);
    EXPECT_EQ(cparameter_integral_v1({}, "Whole", low, high, high).get_value_normalized(), 1.0f);

    cparameter_continuous_v1 wide({}, "Wide", -20, 60, 0);
    EXPECT_EQ(wide.get_value_normalized(), 0.25f);
    cparameter_boolean_v1 on({}, "On", true);
    EXPECT_EQ(on.get_value_normalized(), 1.0f);
    const std::tuple<float, float, bool> others[] = {
        {0.5f, 20, false}, {0.5001f, 20.008f, true}, {2, 60, true}, {-1, -20, false}};
    for (const auto& [n, value, set] : others)
    {
        wide.set_value_normalized(n, false);
        on.set_value_normalized(n, false);
        EXPECT_FLOAT_EQ(wide.get_value(), value);
        EXPECT_EQ(on.get_value(), set) << n;
    }
}

TEST(cparameter_v1, reads_and_writes_texts_of_valid_records_only)
{
    cparameter_continuous_v1 amount({}, "Amount", 0, 100, 50);
    std::string text = "as it was";
    param_value v = amount.get_param_value();
    v.value = param_cell::of(101.0f);
    EXPECT_FALSE(amount.get_string_from_value(v, text, 3) || amount.get_value_from_string("12", v));
    EXPECT_EQ(text, "as it was");
    EXPECT_EQ(v.value.as_continuous(), 101);
    v = amount.get_param_value();
    EXPECT_TRUE(amount.get_value_from_string("250", v) && amount.get_string_from_value(v, text, 3));
    EXPECT_EQ(text, "100");
    EXPECT_EQ(amount.get_value(), 50) << "reading sets nothing";
}

TEST(cparameter_v1, holds_no_lock_during_notifications)
{
    stage s;
    float seen = 0;
    s.host->meanwhile = s.view->meanwhile = [&] { seen += s.component->amount->get_value(); }; // would hang
    s.component->amount->set_value(12, true);
    s.component->amount->set_enabled(false);
    EXPECT_EQ(seen, 3 * 12);
}

} // namespace
} // namespace ov1
