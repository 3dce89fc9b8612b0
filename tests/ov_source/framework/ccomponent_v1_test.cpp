#include "framework/ccomponent_v1.h"

#include "framework/restore_guard.h"
#include "framework/row_renderer.h"
#include "framework/state_blob.h"
#include "platform/cutils_linux.h"
#include "platform/desktop_open.h"
#include "platform/utils_guard.h"
#include "support/test_component.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>

namespace ov1
{
namespace
{

using bytes = std::vector<std::uint8_t>;

bytes state_of(const std::vector<state_record>& records) { return write_state(records); }

/// A user's gesture on the amount, as an editor brackets it.
void drag(stage& s, float to)
{
    s.component->save_state(true);
    s.component->amount->set_value(to, false);
    s.component->save_state(false);
}

TEST(ccomponent_v1, starts_with_a_host_and_releases_it_at_the_end)
{
    const auto component = std::make_shared<test_component>();
    const auto host = std::make_shared<test_host>(component);
    component->initialize(nullptr);
    EXPECT_EQ(component->get_parameter_count(), 0) << "without a host nothing starts";
    component->initialize(host);
    component->set_view(std::make_shared<test_view>());
    host->meanwhile = [&]
    {
        EXPECT_EQ(component->get_view(), nullptr) << "the view is released before the host is notified";
        EXPECT_EQ(component->get_parameter_count(), 4) << "the parameters are released afterwards";
    };
    component->terminate();
    component->terminate();
    EXPECT_EQ(host->events.take(),
              (sent_events{{event_kind::initialized, invalid_id}, {event_kind::terminated, invalid_id}}));
    EXPECT_EQ(component->get_parameter_count(), 0);
    EXPECT_EQ(host.use_count(), 1);
}

TEST(ccomponent_v1, finds_parameters_by_index_uid_and_name)
{
    stage s;
    test_component& c = *s.component;
    EXPECT_EQ(c.get_parameter(3), c.tint);
    EXPECT_TRUE(!c.get_parameter(4) && !c.get_parameter(-1) && !c.get_parameter("steps"));
    EXPECT_EQ(c.get_parameter(make_uid("On")), c.on);
    EXPECT_EQ(c.get_parameter("Steps"), c.steps);
}

TEST(ccomponent_v1, restores_a_state_bit_for_bit)
{
    stage s;
    test_component& c = *s.component;
    const bytes fresh = c.get_state();
    c.amount->set_value(0.1f, false);
    c.steps->set_value(-9, false);
    c.on->set_value(true, false);
    c.tint->set_value({0.25f, -0.0f, 1, 0.75f}, false);
    const bytes saved = c.get_state();
    EXPECT_EQ(saved.size(), c.get_state_size());
    c.reset_to_default();
    EXPECT_EQ(c.get_state(), fresh);
    bytes state = saved;
    state.resize(state.size() + 16, 0xAB); // as hosts store it
    s.host->events.take();
    EXPECT_TRUE(c.set_state(state, true));
    EXPECT_EQ(c.get_state(), saved);
    EXPECT_EQ(s.host->events.take().at(3), std::pair(event_kind::edited, make_uid("Tint")));

    c.terminate();
    EXPECT_EQ(c.get_state(), bytes{}) << "no parameters, no state";
    EXPECT_EQ(c.get_state_size(), 8u);
    EXPECT_FALSE(c.set_state(state, false));
}

TEST(ccomponent_v1, restores_the_complete_records_of_a_state)
{
    const bytes two = state_of({continuous_record("Amount", 7), continuous_record("Gone", 8)});
    const auto cut = [&](int size) { return bytes(two.begin(), two.begin() + size); };
    state_record other_kind = continuous_record("Amount", 7);
    other_kind.value.type = param_type::color;
    const std::tuple<const char*, bytes, bool, float, std::size_t> rows[] = {
        {"whole", two, true, 7, 1},
        {"second record cut short", cut(103), true, 7, 0},
        {"first record cut short", cut(55), true, 50, 0},
        {"none announced, one byte more", {'s', '1', 'v', 'c', 0, 0, 0, 0, 0}, true, 50, 0},
        {"a header alone", cut(8), false, 50, 0},
        {"a record of another kind", state_of({other_kind}), true, 50, 0},
        {"beyond the bounds", state_of({continuous_record("Amount", 1e6f)}), true, 100, 0},
    };
    for (const auto& [name, bytes_of_row, accepted, amount, unknowns] : rows)
    {
        SCOPED_TRACE(name);
        stage s;
        bytes state = bytes_of_row;
        EXPECT_EQ(s.component->set_state(state, false), accepted);
        EXPECT_EQ(s.component->amount->get_value(), amount);
        EXPECT_EQ(s.component->unknowns.size(), unknowns);
        EXPECT_EQ(s.component->restores, accepted ? 1 : 0);
    }
}

TEST(ccomponent_v1, forwards_unknown_records)
{
    stage s;
    state_record strange = continuous_record("Sky", -40);
    strange.value.type = static_cast<param_type>(9);
    strange.value.value.bytes[15] = 0x5A;
    bytes state = state_of({strange});
    EXPECT_TRUE(s.component->set_state(state, true));
    const auto& [id, handed] = s.component->unknowns.at(0);
    EXPECT_TRUE(id == make_uid("Sky") && handed.value == strange.value.value);
    EXPECT_EQ(s.host->events.take(), (sent_events{{event_kind::unknown_parameter, id}}));
}

TEST(ccomponent_v1, reports_that_a_restore_is_running)
{
    stage s;
    s.component->amount->set_value(1, false);
    EXPECT_EQ(s.component->set_while_restoring, 0);
    {
        const restore_guard outer(*s.component);
        s.component->reset_to_default();
        s.component->amount->set_value(2, false);
    }
    EXPECT_EQ(s.component->restores, 1) << "a nested guard starts no further restore";
    EXPECT_EQ(s.component->set_while_restoring, 5);
    EXPECT_FALSE(s.component->is_restoring());
    s.component->reset_to_default();
    EXPECT_EQ(s.component->restores, 2);
}

TEST(ccomponent_v1, undoes_and_redoes_gestures)
{
    stage s;
    test_component& c = *s.component;
    for (const float to : {10.0f, 20.0f, 30.0f})
        drag(s, to);
    // u undo, r redo, d drag to 15, f flush, a digit jumps to that position; then the value
    const std::pair<char, float> rows[] = {{'u', 20}, {'u', 10}, {'r', 20}, {'0', 50}, {'u', 50}, {'3', 30},
                                           {'r', 30}, {'1', 10}, {'d', 15}, {'r', 15}, {'u', 10}, {'u', 50},
                                           {'r', 10}, {'f', 10}, {'r', 10}, {'u', 10}};
    for (const auto& [step, value] : rows)
    {
        SCOPED_TRACE(&step - &rows[0].first);
        if (step == 'u')
            c.undo();
        else if (step == 'r')
            c.redo();
        else if (step == 'd')
            drag(s, 15);
        else if (step == 'f')
            c.flush_state_stack();
        else
            c.jump_undo_stack(step - '0');
        EXPECT_EQ(c.amount->get_value(), value);
    }
}

TEST(ccomponent_v1, stores_no_state_without_an_open_view_or_during_undo)
{
    stage s;
    drag(s, 10);
    s.view->shown = false;
    EXPECT_EQ(s.component->save_state(true), 1);
    s.component->set_view(nullptr);
    EXPECT_EQ(s.component->save_state(true), 1);
    s.view->shown = true;
    s.component->set_view(s.view);
    s.view->meanwhile = [&] { s.component->save_state(true); };
    s.component->undo();
    EXPECT_EQ(s.component->get_undo_range(), (undo_range{0, 0, 1}));
    s.component->redo();
    s.component->jump_undo_stack(0);
    EXPECT_EQ(s.component->get_undo_range(), (undo_range{0, 0, 1}));
    s.component->jump_undo_stack(1);
    EXPECT_EQ(s.component->save_state(true), 1);
    EXPECT_EQ(s.component->get_undo_range(), (undo_range{0, 2, 2})) << "both flags are cleared again";
}

TEST(ccomponent_v1, ignores_undo_during_a_gesture)
{
    stage s;
    drag(s, 10);
    drag(s, 20);
    s.component->undo();
    s.view->editing = true;
    s.component->undo();
    s.component->redo();
    s.component->jump_undo_stack(0);
    EXPECT_EQ(s.component->amount->get_value(), 10);
    EXPECT_EQ(s.component->get_undo_range(), (undo_range{0, 1, 2}));
    s.view->shown = false;
    s.component->undo();
    EXPECT_EQ(s.component->amount->get_value(), 50) << "a closed view blocks nothing";
}

TEST(ccomponent_v1, cancelling_restores_the_saved_state)
{
    stage s;
    s.component->amount->set_value(10, false);
    s.component->save_cancel_state();
    s.component->amount->set_value(20, false);
    s.host->events.take();
    s.component->cancel_effect();
    EXPECT_EQ(s.component->amount->get_value(), 10);
    EXPECT_EQ(s.host->events.take().at(0), std::pair(event_kind::cancelled, invalid_id)) << "before the values";
}

TEST(ccomponent_v1, the_first_parameter_with_the_flag_is_the_bypass)
{
    struct bypass : cparameter_boolean_v1
    {
        using cparameter_boolean_v1::cparameter_boolean_v1;
        std::uint32_t get_flags() const override { return parameter_is_bypass | parameter_is_hidden; }
    };
    stage s;
    s.component->set_bypass(true);
    EXPECT_FALSE(s.component->has_bypass() || s.component->get_bypass() || s.component->on->get_value());
    const auto first = std::make_shared<bypass>(s.component, "Bypass", false);
    const auto second = std::make_shared<bypass>(s.component, "Another", false);
    s.component->register_parameter(first);
    s.component->register_parameter(second);
    s.component->set_bypass(true);
    EXPECT_TRUE(s.component->has_bypass() && s.component->get_bypass());
    EXPECT_TRUE(first->get_value() && !second->get_value());
    EXPECT_EQ(s.host->events.take(), (sent_events{{event_kind::changed, make_uid("Bypass")}}));
}

TEST(ccomponent_v1, renders_rows_in_place_and_clamps_only_the_input_of_halfs)
{
    std::vector<argb_float> row = {{1, 0.1f, 0.2f, 0.3f}, {1, 0.4f, 0.5f, 0.6f}};
    const auto rows = stage().component->get_row_renderer(); // keeps the component alive
    rows->render_row(7, row.data(), row.data(), row.size());
    EXPECT_EQ(row, (std::vector<argb_float>{{70, 0.3f, 0.2f, 0.1f}, {71, 0.6f, 0.5f, 0.4f}}));

    std::vector<half_bits> halfs;
    for (const float value : {1.5f, -0.25f, 0.5f, 2.0f, 0.125f, std::nanf(""), 0.75f, 0.0f})
        halfs.push_back(float_to_half(value));
    rows->render_row_half(7, halfs.data(), halfs.data(), 2);
    std::vector<float> got;
    std::ranges::transform(halfs, std::back_inserter(got), half_to_float);
    EXPECT_EQ(got, (std::vector<float>{0.5f, 0, 1, 70, 0.75f, 0, 0.125f, 71}));
}

TEST(ccomponent_v1, opens_the_manual_of_the_resources)
{
    struct opening_utils : cutils_linux
    {
        using cutils_linux::cutils_linux;
        void open_url(const std::string& text) override { opened = text; }
        std::string opened;
    } utils("", "", {"", "", "/somewhere/share"});
    const utils_guard in_force(utils);
    test_component().open_manual();
    EXPECT_TRUE(utils.opened == "/somewhere/share/manual/index.html" || is_url(utils.opened)) << utils.opened;
}

TEST(ccomponent_v1, works_on_several_threads)
{
    stage s;
    test_component& c = *s.component;
    constexpr int rounds = 400;
    c.tint->set_value({1, 1, 1, 1}, false);
    const bytes white = c.get_state();
    const auto repeat = [](auto step)
    {
        for (int i = 0; i < rounds; ++i)
            step(static_cast<float>(i) / rounds);
    };
    std::thread setter([&] { repeat([&](float x) { c.tint->set_value({x, x, x, x}, true); }); });
    std::thread restorer([&] { repeat([&, state = white](float) mutable { c.set_state(state, false); }); });
    for (int i = 0; i < rounds; ++i)
    {
        const param_argb seen = c.with_records_locked([&] { return c.tint->record_under_lock().value.as_color(); });
        EXPECT_EQ(seen, (param_argb{seen.red, seen.red, seen.red, seen.red})) << "a value mixed from two sets";
        EXPECT_EQ(c.get_state().size(), white.size());
        c.set_view(i % 2 == 0 ? s.view : nullptr);
        s.host->schedule_render();
    }
    setter.join();
    restorer.join();
    EXPECT_EQ(s.host->events.take().size(), 1u + rounds * (1 + 4 + 1)) << "no set was lost";
    EXPECT_FALSE(c.is_restoring());
}

} // namespace
} // namespace ov1
