#include "presets/preset_manager.h"

#include "platform/cutils_linux.h"
#include "platform/utils_guard.h"
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

/// Refuses every state once it is told to.
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
    std::string reason;
};

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

TEST_F(preset_manager_test, saves_loads_and_deletes_by_name_and_replaces_only_when_told_to)
{
    const std::string name = "Gr\xC3\xBCn {en:1} & 2";
    component->amount->set_value(12, false);
    ASSERT_TRUE(manager.save_preset(name, false));
    const std::string saved = write_preset_text(*component);
    component->amount->set_value(99, false);
    EXPECT_FALSE(manager.save_preset(name, false, reason));
    EXPECT_EQ(reason, "exists already");
    EXPECT_EQ(text_of_file(own(name + ".json")), saved);
    ASSERT_TRUE(manager.load_preset(name));
    EXPECT_EQ(component->amount->get_value(), 12);
    component->amount->set_value(99, false);
    EXPECT_TRUE(manager.save_preset(name, true) && manager.load_preset(name));
    EXPECT_EQ(component->amount->get_value(), 99);
    manager.delete_preset(name);
    EXPECT_FALSE(fs::exists(own(name + ".json")));
    EXPECT_FALSE(manager.delete_preset(name, reason));
    EXPECT_EQ(std::exchange(reason, ""), "no such file");
    EXPECT_FALSE(manager.load_preset(name, reason));
    EXPECT_EQ(reason, "no such file");
}

TEST_F(preset_manager_test, a_save_that_fails_half_way_leaves_the_old_preset)
{
    ASSERT_TRUE(manager.save_preset("a", false));
    const std::string old = text_of_file(own("a.json"));
    component->amount->set_value(12, false);
    {
        const size_limit tight(700);
        EXPECT_FALSE(manager.save_preset("a", true, reason));
        EXPECT_FALSE(manager.save_preset("b", false));
    }
    EXPECT_EQ(reason, "the file would be larger than the system allows");
    EXPECT_EQ(text_of_file(own("a.json")), old);
    EXPECT_EQ(std::distance(fs::directory_iterator(own("")), {}), 1) << "nothing half done stays behind";
}

TEST_F(preset_manager_test, names_that_are_no_plain_file_names_are_refused)
{
    const std::pair<std::string, const char*> rows[] = {{"", "a preset needs a name"},
                                                        {"../x", "the name begins with a dot"},
                                                        {"a/b", "the name holds a path separator"},
                                                        {"  ", "a preset needs a name"},
                                                        {".hidden", "the name begins with a dot"},
                                                        {"a\nb", "the name holds a control character"},
                                                        {std::string("a\0b", 3), "the name holds a control character"},
                                                        {std::string(251, 'n'), "the name is longer than 250 bytes"}};
    home.with_file("x.json", write_preset_text(*component));
    for (const auto& [name, expected] : rows)
    {
        SCOPED_TRACE(name);
        EXPECT_FALSE(manager.save_preset(name, true, reason));
        EXPECT_EQ(reason, expected);
        EXPECT_FALSE(manager.load_preset(name) || manager.delete_preset(name, reason));
        EXPECT_TRUE(manager.preset_rejected(name, reason));
        EXPECT_EQ(reason, expected);
    }
    EXPECT_EQ(fs::is_empty(own("")), true);
    EXPECT_TRUE(manager.save_preset(std::string(250, 'n'), false, reason)) << reason;
}

TEST_F(preset_manager_test, says_before_a_load_that_it_would_refuse)
{
    ASSERT_TRUE(manager.save_preset("a", false));
    EXPECT_FALSE(manager.preset_rejected("a", reason));
    EXPECT_EQ(reason, "");
    component->refusal = "made by a later version";
    EXPECT_TRUE(manager.preset_rejected("a", reason));
    EXPECT_EQ(reason, "made by a later version");
    EXPECT_FALSE(manager.load_preset("a", reason));
    component->refusal.clear();
    home.with_file("Plugin Presets/Veridial/b.json", R"({"parameter_count":0})");
    EXPECT_TRUE(manager.preset_rejected("b", reason));
    EXPECT_EQ(reason, "\"parameter_count\" is less than 1");
}

TEST_F(preset_manager_test, bundled_looks_are_listed_apart_and_never_touched)
{
    shared.with_file("presets/Look.json", write_preset_text(*component));
    names own_names, bundled;
    EXPECT_TRUE(manager.get_bundled_presets(bundled));
    EXPECT_EQ(bundled, names{"Look"});
    component->amount->set_value(12, false);
    EXPECT_FALSE(manager.load_preset("Look", reason));
    EXPECT_TRUE(manager.save_preset("Look", true, reason));
    EXPECT_TRUE(manager.getPresets(own_names));
    EXPECT_EQ(own_names, names{"Look"});
    EXPECT_TRUE(manager.load_bundled_preset("Look", reason)) << reason;
    EXPECT_EQ(component->amount->get_value(), 50);
    EXPECT_TRUE(manager.delete_preset("Look", reason));
    EXPECT_FALSE(manager.delete_preset("Look", reason));
    EXPECT_TRUE(manager.load_bundled_preset("Look", reason)) << reason;
    EXPECT_FALSE(manager.load_bundled_preset("../Look", reason));
}

TEST(bundled_presets, all_load_and_no_two_are_one_look)
{
    cutils_linux utils("", "", {{}, "/nowhere", SHARE_DIR, 0.0, language_id::english});
    const utils_guard in_place(utils);
    const effect_stage on;
    preset_manager manager(on.effect);
    names found;
    EXPECT_TRUE(manager.get_bundled_presets(found));
    EXPECT_GE(found.size(), 10u);
    std::set<std::string> looks{write_preset_text(*on.effect)};
    std::string reason;
    for (const std::string& name : found)
    {
        EXPECT_TRUE(manager.load_bundled_preset(name, reason)) << name << ": " << reason;
        EXPECT_TRUE(looks.insert(write_preset_text(*on.effect)).second) << name;
    }
}

TEST_F(preset_manager_test, without_component_or_home_everything_fails_and_nothing_is_made)
{
    cutils_linux homeless("", "", {});
    const utils_guard no_home(homeless);
    preset_manager lost(component);
    names found;
    for (preset_manager* each : {&lost, &manager})
    {
        EXPECT_EQ(each->get_preset_path(), "");
        EXPECT_FALSE(each->getPresets(found) || each->get_bundled_presets(found));
        EXPECT_FALSE(each->save_preset("a", true, reason) || each->load_preset("a") ||
                     each->delete_preset("a", reason));
        EXPECT_TRUE(each->preset_rejected("a", reason));
        EXPECT_EQ(reason, each == &lost ? "there is no home folder for presets" : "the effect is gone");
        EXPECT_FALSE(each->load_bundled_preset("a", reason));
        component.reset();
    }
    EXPECT_EQ(home.count(), 0);
}

} // namespace
} // namespace ov1
