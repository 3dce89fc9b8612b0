#include "framework/ccomponent_v1.h"

#include "framework/restore_scope.h"
#include "framework/row_renderer.h"
#include "framework/state_blob.h"
#include "platform/cutils_linux.h"
#include "platform/desktop_open.h"
#include "platform/scoped_utils.h"
#include "support/test_component.h"

#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>

namespace ov1
{
namespace
{

using bytes = std::vector<std::uint8_t>;
using told = std::vector<std::pair<event_kind, uid>>;

state_record amount_record(float v, const char* name = "Amount")
{
    return {{param_type::continuous, param_cell::of(v), {}, {}, {}}, make_uid(name)};
}

bytes state_of(const std::vector<state_record>& records) { return write_state(records); }

/// A user's gesture on the amount, as an editor brackets it.
void drag(stage& s, float to)
{
    s.component->save_state(true);
    s.component->amount->set_value(to, false);
    s.component->save_state(false);
}

TEST(ccomponent_v1, is_born_with_a_host_and_ends_with_it)
{
    const auto component = std::make_shared<test_component>();
    const auto host = std::make_shared<test_host>(component);
    component->initialize(nullptr);
    EXPECT_EQ(component->get_parameter_count(), 0) << "no host, no start";
    component->initialize(host);
    component->set_view(std::make_shared<test_view>());
    bool view_seen = true;
    int parameters_seen = 0;
    host->meanwhile = [&]
    {
        view_seen = component->get_view() != nullptr;
        parameters_seen = component->get_parameter_count();
    };
    component->terminate();
    EXPECT_FALSE(view_seen) << "the view goes before the host hears of it";
    EXPECT_EQ(parameters_seen, 4) << "the parameters after";
    component->terminate();
    EXPECT_EQ(host->events.take(), (told{{event_kind::initialized, invalid_id}, {event_kind::terminated, invalid_id}}));
    EXPECT_EQ(component->get_parameter_count(), 0);
    EXPECT_EQ(host.use_count(), 1);
}

TEST(ccomponent_v1, finds_parameters_by_place_uid_and_name)
{
    stage s;
    test_component& c = *s.component;
    EXPECT_EQ(c.get_parameter(3), c.tint);
    EXPECT_EQ(c.get_parameter(4), nullptr);
    EXPECT_EQ(c.get_parameter(-1), nullptr);
    EXPECT_EQ(c.get_parameter(make_uid("On")), c.on);
    EXPECT_EQ(c.get_parameter("Steps"), c.steps);
    EXPECT_EQ(c.get_parameter("steps"), nullptr);
}

TEST(ccomponent_v1, is_asked_by_its_own_name_as_parameter_and_host_are)
{
    stage s;
    const std::pair<iobject*, std::string> rows[] = {
        {s.component.get(), "ccomponent_v1"}, {s.component->tint.get(), "cparameter_v1"}, {s.host.get(), "chost_v1"}};
    for (const auto& [object, own] : rows)
        for (const std::string asked : {"ccomponent_v1", "cparameter_v1", "chost_v1", "icomponent_v1", "iobject", ""})
        {
            iobject* found = nullptr;
            EXPECT_EQ(object->query_interface(asked, &found), own == asked) << own << " asked for " << asked;
            EXPECT_EQ(found, own == asked ? object : nullptr);
        }
}

TEST(ccomponent_v1, gives_back_a_state_to_the_bit)
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

TEST(ccomponent_v1, takes_of_a_state_what_fits)
{
    const bytes two = state_of({amount_record(7), amount_record(8, "Gone")});
    const auto cut = [&](std::size_t size) { return bytes(two.begin(), two.begin() + static_cast<int>(size)); };
    bytes negative = two;
    negative[7] = 0x80;
    bytes foreign = two;
    foreign[0] = 'S';
    state_record other_kind = amount_record(7);
    other_kind.value.type = param_type::color;
    const struct
    {
        const char* name;
        bytes state;
        bool accepted;
        float amount;
        std::size_t unknowns;
    } rows[] = {
        {"whole", two, true, 7, 1},
        {"second record cut short", cut(103), true, 7, 0},
        {"first record cut short", cut(55), true, 50, 0},
        {"negative count", negative, true, 50, 0},
        {"a header alone", cut(8), false, 50, 0},
        {"other magic", foreign, false, 50, 0},
        {"a record of another kind", state_of({other_kind}), true, 50, 0},
        {"beyond the bounds", state_of({amount_record(1e6f)}), true, 100, 0},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        stage s;
        bytes state = row.state;
        EXPECT_EQ(s.component->set_state(state, false), row.accepted);
        EXPECT_EQ(s.component->amount->get_value(), row.amount);
        EXPECT_EQ(s.component->unknowns.size(), row.unknowns);
        EXPECT_EQ(s.component->restores, row.accepted ? 1 : 0);
    }
}

TEST(ccomponent_v1, hands_on_what_it_does_not_know)
{
    stage s;
    state_record strange = amount_record(-40, "Sky");
    strange.value.type = static_cast<param_type>(9);
    strange.value.value.bytes[15] = 0x5A;
    bytes state = state_of({strange});
    EXPECT_TRUE(s.component->set_state(state, true));
    EXPECT_EQ(s.component->unknowns.at(0).first, make_uid("Sky"));
    EXPECT_EQ(s.component->unknowns.at(0).second.value, strange.value.value);
    EXPECT_EQ(s.host->events.take(), (told{{event_kind::unknown_parameter, make_uid("Sky")}}));
}

TEST(ccomponent_v1, knows_that_it_is_restored)
{
    stage s;
    s.component->amount->set_value(1, false);
    EXPECT_EQ(s.component->set_while_restoring, 0);
    {
        const restore_scope outer(*s.component);
        s.component->reset_to_default();
        s.component->amount->set_value(2, false);
    }
    EXPECT_EQ(s.component->restores, 1) << "the scope within another starts nothing";
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
    const std::pair<std::function<void()>, float> rows[] = {
        {[&] { c.undo(); }, 20},    {[&] { c.undo(); }, 10},
        {[&] { c.redo(); }, 20},    {[&] { c.jump_undo_stack(0); }, 50},
        {[&] { c.undo(); }, 50},    {[&] { c.jump_undo_stack(3); }, 30},
        {[&] { c.redo(); }, 30},    {[&] { c.jump_undo_stack(1); }, 10},
        {[&] { drag(s, 15); }, 15}, {[&] { c.redo(); }, 15}, // the branch is gone
        {[&] { c.undo(); }, 10},    {[&] { c.flush_state_stack(); }, 10},
        {[&] { c.redo(); }, 10},
    };
    for (const auto& [step, value] : rows)
    {
        SCOPED_TRACE(&step - &rows[0].first);
        step();
        EXPECT_EQ(c.amount->get_value(), value);
    }
}

TEST(ccomponent_v1, stores_no_state_without_an_open_view_or_within_a_step)
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
    EXPECT_EQ(s.component->get_undo_range(), (undo_range{0, 2, 2})) << "both guards are down again";
}

TEST(ccomponent_v1, takes_no_step_during_a_gesture)
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
    EXPECT_EQ(s.component->amount->get_value(), 50) << "a closed view holds nothing up";
}

TEST(ccomponent_v1, cancels_to_the_state_that_was_kept)
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

TEST(ccomponent_v1, bypasses_by_the_first_parameter_with_the_flag)
{
    class bypass : public cparameter_boolean_v1
    {
    public:
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
    EXPECT_EQ(s.host->events.take(), (told{{event_kind::changed, make_uid("Bypass")}}));
}

TEST(ccomponent_v1, renders_rows_pixel_by_pixel_also_in_place)
{
    std::vector<argb_float> row = {{1, 0.1f, 0.2f, 0.3f}, {1, 0.4f, 0.5f, 0.6f}};
    const auto rows = stage().component->get_row_renderer(); // keeps the component alive
    rows->render_row(7, row.data(), row.data(), row.size());
    EXPECT_EQ(row, (std::vector<argb_float>{{70, 0.3f, 0.2f, 0.1f}, {71, 0.6f, 0.5f, 0.4f}}));
}

TEST(ccomponent_v1, opens_the_manual_among_the_resources)
{
    class opening_utils : public cutils_linux
    {
    public:
        using cutils_linux::cutils_linux;
        void open_url(const std::string& text) override { opened = text; }
        std::string opened;
    } utils("", "", {});
    const scoped_utils scope(utils);
    setenv("VERIDIAL_RESOURCES", "/somewhere/share", 1);
    test_component().open_manual();
    unsetenv("VERIDIAL_RESOURCES");
    EXPECT_TRUE(utils.opened == "/somewhere/share/manual/index.html" || is_url(utils.opened)) << utils.opened;
}

TEST(ccomponent_v1, halfs_are_limited_on_the_way_in_alone_and_come_back_in_their_order)
{
    const auto rows = stage().component->get_row_renderer();
    std::vector<half_bits> row;
    for (const float value : {1.5f, -0.25f, 0.5f, 2.0f, 0.125f, std::nanf(""), 0.75f, 0.0f})
        row.push_back(float_to_half(value));
    rows->render_row_half(7, row.data(), row.data(), 2);
    std::vector<float> got;
    for (const half_bits half : row)
        got.push_back(half_to_float(half));
    EXPECT_EQ(got, (std::vector<float>{0.5f, 0, 1, 70, 0.75f, 0, 0.125f, 71}));
}

TEST(ccomponent_v1, is_used_from_several_threads)
{
    stage s;
    test_component& c = *s.component;
    constexpr int rounds = 400;
    c.tint->set_value({1, 1, 1, 1}, false);
    const bytes white = c.get_state();
    const auto grey = [](int i)
    {
        const float x = static_cast<float>(i) / rounds;
        return param_argb{x, x, x, x};
    };
    std::thread setter(
        [&]
        {
            for (int i = 0; i < rounds; ++i)
                c.tint->set_value(grey(i), true);
        });
    std::thread restorer(
        [&]
        {
            for (int i = 0; i < rounds; ++i)
            {
                bytes state = white;
                c.set_state(state, false);
            }
        });
    for (int i = 0; i < rounds; ++i)
    {
        const param_argb seen = c.with_records_locked([&] { return c.tint->record_under_lock().value.as_color(); });
        EXPECT_EQ(seen, (param_argb{seen.red, seen.red, seen.red, seen.red})) << "torn";
        EXPECT_EQ(c.get_state().size(), white.size());
        c.set_view(i % 2 == 0 ? s.view : nullptr);
        s.host->schedule_render();
    }
    setter.join();
    restorer.join();
    EXPECT_EQ(s.host->events.take().size(), 1u + rounds * (1 + 4 + 1)) << "nobody's set was lost";
    EXPECT_FALSE(c.is_restoring());
}

} // namespace
} // namespace ov1
