#include "host/bridge/state_payload.h"

#include "framework/chost_v1.h"
#include "framework/state_blob.h"
#include "host/bridge/mapped_parameters.h"
#include "support/bridge_component.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

TEST(state_payload, payloads_of_one_state_differ_in_their_last_16_bytes)
{
    const auto state = write_state(std::vector<state_record>(2));
    const auto one = make_state_payload(state), other = make_state_payload(state);
    ASSERT_EQ(one.size(), state.size() + 16);
    ASSERT_EQ(other.size(), one.size());
    EXPECT_TRUE(std::equal(state.begin(), state.end(), one.begin()));
    EXPECT_FALSE(std::equal(one.end() - 16, one.end(), other.end() - 16));
    EXPECT_TRUE(check_state_blob(one));
}

TEST(mapped_parameters, are_the_changed_ones_that_the_state_does_not_name)
{
    const auto component = std::make_shared<bridge_component>();
    component->initialize(std::make_shared<chost_v1>(component));
    param_value steps = component->get_parameter(bridge_component::steps)->get_param_value();
    steps.value = param_cell::of(9);
    param_value old = component->get_parameter(bridge_component::amount)->get_param_value();
    old.value = param_cell::of(77.0f);
    std::vector<state_record> records{{steps, make_uid("Steps")}};
    for (const bool has_old : {false, true})
    {
        SCOPED_TRACE(has_old);
        if (has_old)
            records.push_back({old, make_uid("Old Amount")});
        auto state = write_state(records);
        const auto before = copy_values(*component);
        ASSERT_TRUE(component->set_state(state, true));
        EXPECT_EQ(mapped_parameters(*component, before, state),
                  has_old ? std::vector<int>{bridge_component::amount} : std::vector<int>{});
    }
}

} // namespace
} // namespace ov1
