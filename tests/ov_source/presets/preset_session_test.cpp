#include "presets/preset_session.h"

#include "platform/cutils_linux.h"
#include "platform/utils_guard.h"
#include "presets/preset_text.h"
#include "support/temp_folder.h"
#include "support/test_component.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

/// As an effect does: one of the parameters is the bypass.
struct component_with_bypass : test_component
{
    struct bypass_parameter : cparameter_boolean_v1
    {
        using cparameter_boolean_v1::cparameter_boolean_v1;
        std::uint32_t get_flags() const override { return parameter_is_bypass; }
    };
    void init_component() override
    {
        test_component::init_component();
        register_parameter(std::make_shared<bypass_parameter>(get_self(), "Bypass", false));
    }
};

struct preset_session_test : testing::Test
{
    preset_session_test()
    {
        component->initialize(std::make_shared<chost_v1>(component));
        component->set_view(view);
    }

    /// Sets a parameter, as a control or the history does, and returns what the session reports.
    bool set(iparameter_v1& parameter, param_cell value)
    {
        param_value v = parameter.get_param_value();
        v.value = value;
        parameter.set_param_value(v, false);
        return session.parameter_changed(parameter);
    }
    bool set_amount(float value) { return set(*component->amount, param_cell::of(value)); }
    std::string own(const std::string& name) const { return home / "Plugin Presets/Veridial/" + name + ".json"; }

    temp_folder home, shared;
    cutils_linux utils{"", "", {{}, home.path, shared.path, 0.0, language_id::english}};
    utils_guard in_place{utils};
    std::shared_ptr<component_with_bypass> component = std::make_shared<component_with_bypass>();
    std::shared_ptr<test_view> view = std::make_shared<test_view>();
    preset_session session{component};
};

TEST_F(preset_session_test, lists_the_users_own_presets_before_the_bundled_ones)
{
    home.with_file("Plugin Presets/Veridial/z.json", "x");
    home.with_file("Plugin Presets/Veridial/b.json", "x");
    shared.with_file("presets/b.json", "x");
    shared.with_file("presets/a.json", "x");
    const preset_list all = session.list();
    EXPECT_FALSE(all.own_failure);
    EXPECT_EQ(all.choices, (std::vector<preset_choice>{{"b", false}, {"z", false}, {"a", true}, {"b", true}}));
    EXPECT_EQ(all.files,
              (std::vector<std::string>{own("b"), own("z"), shared / "presets/a.json", shared / "presets/b.json"}));

    std::filesystem::remove_all(home / "Plugin Presets/Veridial");
    const preset_list rest = session.list();
    EXPECT_TRUE(rest.own_failure && !rest.own_failure->reason.empty());
    EXPECT_EQ(rest.choices, (std::vector<preset_choice>{{"a", true}, {"b", true}}));
    EXPECT_EQ(rest.files.size(), 2u);
}

TEST_F(preset_session_test, is_changed_exactly_while_a_value_differs_from_the_presets)
{
    EXPECT_FALSE(set_amount(12)) << "no preset is current";
    EXPECT_FALSE(session.is_changed());
    ASSERT_TRUE(session.save("a", false));
    EXPECT_FALSE(session.is_changed());
    EXPECT_TRUE(set_amount(13)) << "has become changed";
    EXPECT_FALSE(set_amount(14)) << "was changed before";
    EXPECT_FALSE(set(*component->steps, param_cell::of(std::int32_t{3})));
    EXPECT_FALSE(set_amount(12)) << "the steps still differ";
    EXPECT_TRUE(session.is_changed());
    EXPECT_TRUE(set(*component->steps, param_cell::of(std::int32_t{0})));
    EXPECT_FALSE(session.is_changed());
    EXPECT_FALSE(set(*component->get_parameter("Bypass"), param_cell::of(true))) << "the bypass does not count";
    EXPECT_FALSE(session.is_changed());
    EXPECT_TRUE(set_amount(13));
    ASSERT_TRUE(session.save("a", true));
    EXPECT_FALSE(session.is_changed()) << "the preset now has the new value";
    EXPECT_TRUE(set_amount(12));
}

TEST_F(preset_session_test, a_loaded_preset_becomes_current_as_one_undo_step)
{
    ASSERT_TRUE(session.save("mine", false));
    std::filesystem::create_directories(shared / "presets");
    std::filesystem::copy_file(own("mine"), shared / "presets/look.json");
    for (const preset_choice& choice : {preset_choice{"mine", false}, {"look", true}})
    {
        SCOPED_TRACE(choice.name);
        set_amount(80);
        const int before = component->get_undo_range().position;
        ASSERT_TRUE(session.load(choice));
        EXPECT_EQ(component->amount->get_value(), 50);
        EXPECT_EQ(component->get_undo_range().position, before + 1);
        EXPECT_EQ(session.get_current(), choice);
        EXPECT_FALSE(session.is_changed());
        EXPECT_EQ(session.get_own_current() != nullptr, !choice.is_bundled);
    }
}

TEST_F(preset_session_test, what_fails_leaves_grade_history_and_current_preset)
{
    ASSERT_TRUE(session.save("a", false));
    home.with_file("Plugin Presets/Veridial/broken.json", "{\"parameters\":");
    set_amount(80);
    const undo_range history = component->get_undo_range();
    const auto expect_failure = [&](const result<>& outcome, const std::string& expected)
    {
        ASSERT_FALSE(outcome) << expected;
        EXPECT_EQ(outcome.error().reason.substr(0, expected.size()), expected);
        EXPECT_EQ(component->amount->get_value(), 80);
        EXPECT_EQ(component->get_undo_range(), history);
        EXPECT_EQ(session.get_current(), (preset_choice{"a", false}));
        EXPECT_TRUE(session.is_changed());
    };
    expect_failure(session.load({"broken", false}), "not valid JSON at byte 14");
    expect_failure(session.load({"a", true}), "no such file");
    expect_failure(session.load({"../a", true}), "the name begins with a dot");
    expect_failure(session.save("a", false), "already exists");
    expect_failure(session.save("a/b", true), "the name holds a path separator");
    expect_failure(session.remove("missing"), "no such file");
    view->editing = true;
    expect_failure(session.load({"a", false}), "a control is being moved");
}

TEST_F(preset_session_test, deleting_the_current_preset_leaves_none_current)
{
    ASSERT_TRUE(session.save("a", false) && session.save("b", false));
    set_amount(12);
    ASSERT_TRUE(session.remove("a"));
    EXPECT_EQ(session.get_current(), (preset_choice{"b", false})) << "another one";
    EXPECT_TRUE(session.is_changed());
    EXPECT_TRUE(session.exists("b"));
    ASSERT_TRUE(session.remove("b"));
    EXPECT_FALSE(session.exists("b") || session.get_current() || session.is_changed());
    EXPECT_FALSE(std::filesystem::exists(own("b")));
}

TEST_F(preset_session_test, without_its_component_everything_fails_with_a_reason)
{
    ASSERT_TRUE(session.save("a", false));
    shared.with_file("presets/look.json", write_preset_text(*component));
    component.reset();
    for (const auto& outcome :
         {session.load({"a", false}), session.load({"look", true}), session.save("a", true), session.remove("a")})
    {
        ASSERT_FALSE(outcome);
        EXPECT_EQ(outcome.error().reason, "the effect is gone");
    }
    EXPECT_TRUE(session.list().own_failure);
    EXPECT_TRUE(std::filesystem::exists(own("a")));
}

} // namespace
} // namespace ov1
