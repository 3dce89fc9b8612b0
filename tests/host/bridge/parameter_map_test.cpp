#include "host/bridge/parameter_map.h"

#include "framework/chost_v1.h"
#include "support/bridge_component.h"

#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

struct parameter_map : ::testing::Test
{
    parameter_map() { component->initialize(std::make_shared<chost_v1>(component)); }

    param_value record(int index) { return component->get_parameter(index)->get_param_value(); }

    std::shared_ptr<bridge_component> component = std::make_shared<bridge_component>();
};

TEST_F(parameter_map, declarations_depend_on_type_range_and_flags)
{
    const auto declared = declare_parameters(*component);
    const struct
    {
        const char* name;
        host_control control;
        std::uint32_t flags;
        host_value default_value;
        double min, max, delta;
        std::size_t entries;
    } rows[] = {
        {"Amount", host_control::float_slider, 0, 12.5, -50, 100, 0.05, 0},
        {"Menu", host_control::popup, 0, 2, 0, 0, 0, 15},
        {"Steps", host_control::int_slider, 0, 5, 3, 18, 1, 0},
        {"On & off", host_control::toggle, 0, true, 0, 0, 0, 0},
        {"Tint", host_control::color, 0x400, host_color{0.25, 0.5, 0.75, 1}, 0, 0, 0, 0},
        {"Secret", host_control::float_slider, 2, 0.5, 0, 1, 0.05, 0},
    };
    ASSERT_EQ(declared.size(), std::size(rows));
    for (std::size_t i = 0; i < declared.size(); ++i)
    {
        SCOPED_TRACE(rows[i].name);
        EXPECT_EQ(declared[i].id, static_cast<int>(i) + 2);
        EXPECT_EQ(declared[i].name, rows[i].name);
        EXPECT_EQ(declared[i].control, rows[i].control);
        EXPECT_EQ(declared[i].flags, rows[i].flags);
        EXPECT_EQ(declared[i].default_value, rows[i].default_value);
        EXPECT_EQ(declared[i].min, rows[i].min);
        EXPECT_EQ(declared[i].max, rows[i].max);
        EXPECT_EQ(declared[i].delta, rows[i].delta);
        EXPECT_EQ(declared[i].entries.size(), rows[i].entries);
    }
    EXPECT_EQ(declared[bridge_component::menu].entries.front(), "3");
    EXPECT_EQ(declared[bridge_component::menu].entries.back(), "17");
}

TEST_F(parameter_map, host_values_are_converted_to_the_parameters_type)
{
    param_value amount = record(bridge_component::amount), menu = record(bridge_component::menu),
                tint = record(bridge_component::tint);
    take_host_value(0.1, amount);
    EXPECT_EQ(amount.value.as_continuous(), 0.1f);
    take_host_value(7, amount);
    EXPECT_EQ(amount.value.as_continuous(), 0.1f) << "an integer is no float slider's value";
    take_host_value(4, menu);
    EXPECT_EQ(menu.value.as_integral(), 7) << "an index is counted from the lower bound";
    take_host_value(std::numeric_limits<int>::max(), menu);
    EXPECT_EQ(menu.value.as_integral(), std::numeric_limits<int>::max());
    take_host_value(host_color{1.5, -0.25, 0.5, 0.125}, tint);
    EXPECT_EQ(tint.value.as_color(), (param_argb{0.125f, 1, 0, 0.5f}));
}

TEST_F(parameter_map, values_differ_only_if_their_floats_do)
{
    param_value amount = record(bridge_component::amount);
    amount.value = param_cell::of(0.1f);
    EXPECT_FALSE(host_differs(0.1, amount)) << "0.1 narrowed is the record's";
    EXPECT_TRUE(host_differs(0.1 + 1e-7, amount));
    EXPECT_FALSE(host_differs(2, record(bridge_component::menu)));
    EXPECT_TRUE(host_differs(5, record(bridge_component::menu))) << "an index, not the value";
    EXPECT_FALSE(host_differs(host_color{0.25, 0.5, 0.75, 1}, record(bridge_component::tint)));
    EXPECT_TRUE(host_differs(host_color{0.25, 0.5, 0.75, 0.5}, record(bridge_component::tint)));
}

} // namespace
} // namespace ov1
