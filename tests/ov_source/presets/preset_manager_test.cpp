#include "presets/preset_manager.h"

#include "platform/cutils_linux.h"
#include "platform/utils_guard.h"
#include "presets/preset_session.h"
#include "presets/preset_text.h"
#include "support/effect_stage.h"
#include "support/size_limit.h"
#include "support/temp_folder.h"
#include "support/test_component.h"

#include <gtest/gtest.h>
#include <set>

namespace ov1
{
namespace
{

namespace fs = std::filesystem;
using names = std::vector<std::string>;

/// Refuses every state as long as a refusal is set.
struct choosy_component : test_component
{
    bool is_state_rejected(std::vector<std::uint8_t>&, bool, std::string& message) override
    {
        message = refusal;
        return !refusal.empty();
    }
    std::string refusal;
};

struct preset_manager_test : testing::Test
{
    preset_manager_test() { component->initialize(std::make_shared<chost_v1>(component)); }

    std::string own(std::string_view leaf) const { return home / "Plugin Presets/Veridial/" + std::string(leaf); }

    temp_folder home, shared;
    cutils_linux utils{"", "", {{}, home.path, shared.path, 0.0, language_id::english}};
    utils_guard in_place{utils};
    std::shared_ptr<choosy_component> component = std::make_shared<choosy_component>();
    preset_manager manager{component};
    std::string message;
};

/// Why the last operation failed; empty if it succeeded.
std::string reason_of(const preset_manager& manager)
{
    return manager.get_failure() ? manager.get_failure()->reason : std::string();
}

TEST_F(preset_manager_test, lists_the_presets_of_its_own_folder_and_nothing_else)
{
    EXPECT_EQ(manager.get_preset_path(), home / "Plugin Presets/Veridial");
    for (const char* leaf : {"b.json", "a.json", "a.b.json", ".json", ".hidden.json", "c.JSON", "json", "d.json.txt",
                             "folder.json/e.json"})
        home.with_file("Plugin Presets/Veridial/" + std::string(leaf), "x");
    names found{"before"};
    EXPECT_TRUE(manager.getPresets(found));
    EXPECT_EQ(found, (names{"before", "a", "a.b", "b"}));
    EXPECT_TRUE(manager.preset_exists("a"));
    EXPECT_FALSE(manager.preset_exists("folder"));
}

TEST_F(preset_manager_test, saves_loads_and_deletes_by_name_and_replaces_only_with_overwrite)
{
    const std::string name = "Gr\xC3\xBCn {en:1} & 2";
    component->amount->set_value(12, false);
    ASSERT_TRUE(manager.save_preset(name, false));
    const std::string saved = write_preset_text(*component);
    component->amount->set_value(99, false);
    EXPECT_FALSE(manager.save_preset(name, false));
    EXPECT_EQ(reason_of(manager), "already exists");
    EXPECT_EQ(text_of_file(own(name + ".json")), saved);
    ASSERT_TRUE(manager.load_preset(name));
    EXPECT_EQ(component->amount->get_value(), 12);
    component->amount->set_value(99, false);
    EXPECT_TRUE(manager.save_preset(name, true) && manager.load_preset(name));
    EXPECT_EQ(component->amount->get_value(), 99);
    manager.delete_preset(name);
    EXPECT_FALSE(fs::exists(own(name + ".json")));
    EXPECT_EQ(reason_of(manager), "");
    manager.delete_preset(name);
    EXPECT_EQ(reason_of(manager), "no such file");
    EXPECT_FALSE(manager.load_preset(name));
    EXPECT_EQ(reason_of(manager), "no such file");
}

TEST_F(preset_manager_test, a_save_that_fails_half_way_leaves_the_old_preset)
{
    ASSERT_TRUE(manager.save_preset("a", false));
    const std::string old = text_of_file(own("a.json"));
    component->amount->set_value(12, false);
    {
        const size_limit tight(700);
        EXPECT_FALSE(manager.save_preset("b", false));
        EXPECT_FALSE(manager.save_preset("a", true));
    }
    EXPECT_EQ(reason_of(manager), "the file would be larger than the system allows");
    EXPECT_EQ(text_of_file(own("a.json")), old);
    EXPECT_EQ(std::distance(fs::directory_iterator(own("")), {}), 1) << "nothing half done stays behind";
}

TEST_F(preset_manager_test, names_that_are_not_plain_file_names_are_refused)
{
    const std::pair<std::string, const char*> rows[] = {{"../x", "the name begins with a dot"},
                                                        {"a/b", "the name holds a path separator"},
                                                        {"  ", "a preset needs a name"},
                                                        {"a\nb", "the name holds a control character"},
                                                        {std::string("a\0b", 3), "the name holds a control character"},
                                                        {std::string(251, 'n'), "the name is longer than 250 bytes"}};
    home.with_file("x.json", write_preset_text(*component));
    for (const auto& [name, expected] : rows)
    {
        SCOPED_TRACE(name);
        EXPECT_FALSE(manager.save_preset(name, true));
        EXPECT_EQ(reason_of(manager), expected);
        EXPECT_FALSE(manager.load_preset(name));
        EXPECT_EQ(reason_of(manager), expected);
        manager.delete_preset(name);
        EXPECT_EQ(reason_of(manager), expected);
        EXPECT_TRUE(manager.preset_rejected(name, message));
        EXPECT_EQ(message, expected);
    }
    EXPECT_TRUE(fs::is_empty(own("")));
    EXPECT_TRUE(manager.save_preset(std::string(250, 'n'), false)) << reason_of(manager);
}

TEST_F(preset_manager_test, reports_before_a_load_that_it_would_be_refused)
{
    ASSERT_TRUE(manager.save_preset("a", false));
    EXPECT_FALSE(manager.preset_rejected("a", message));
    EXPECT_EQ(message, "");
    component->refusal = "made by a later version";
    EXPECT_TRUE(manager.preset_rejected("a", message));
    EXPECT_EQ(message, "made by a later version");
    EXPECT_FALSE(manager.load_preset("a"));
    EXPECT_EQ(reason_of(manager), "made by a later version");
    component->refusal.clear();
    home.with_file("Plugin Presets/Veridial/b.json", R"({"parameter_count":0})");
    EXPECT_TRUE(manager.preset_rejected("b", message));
    EXPECT_EQ(message, "\"parameter_count\" is less than 1");
}

TEST(bundled_presets, all_load_and_no_two_are_the_same_grade)
{
    cutils_linux utils("", "", {{}, "/nowhere", SHARE_DIR, 0.0, language_id::english});
    const utils_guard in_place(utils);
    const effect_stage on;
    preset_session session(on.effect);
    const auto found = session.list().choices;
    EXPECT_GE(found.size(), 10u);
    std::set<std::string> grades{write_preset_text(*on.effect)};
    for (const preset_choice& bundled : found)
    {
        const auto loaded = session.load(bundled);
        EXPECT_TRUE(loaded) << bundled.name << ": " << loaded.error().reason;
        EXPECT_TRUE(grades.insert(write_preset_text(*on.effect)).second) << bundled.name;
    }
}

TEST_F(preset_manager_test, without_component_or_home_every_operation_fails_with_a_reason)
{
    ASSERT_TRUE(manager.save_preset("kept", false)) << "the folder is known from now on";
    const std::string kept = text_of_file(own("kept.json"));
    cutils_linux homeless("", "", {});
    const utils_guard no_home(homeless);
    preset_manager without_home(component);
    names found;
    for (preset_manager* each : {&without_home, &manager})
    {
        if (each == &manager)
            component.reset();
        const std::string expected = component ? "there is no home folder for presets" : "the effect is gone";
        const auto expect_failure = [&](bool succeeded)
        {
            EXPECT_FALSE(succeeded);
            EXPECT_EQ(reason_of(*each), expected);
        };
        expect_failure(each->save_preset("a", true));
        expect_failure(each->load_preset("kept"));
        expect_failure(!each->preset_rejected("kept", message));
        EXPECT_EQ(message, expected);
        each->delete_preset("kept");
        expect_failure(false);
        EXPECT_FALSE(each->getPresets(found) || each->preset_exists("kept"));
    }
    EXPECT_EQ(text_of_file(own("kept.json")), kept);
    EXPECT_EQ(std::distance(fs::directory_iterator(own("")), {}), 1);
}

} // namespace
} // namespace ov1
