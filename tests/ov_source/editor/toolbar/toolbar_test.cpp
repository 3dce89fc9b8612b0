#include "editor/toolbar/cov_plugin_toolbar.h"

#include "effect/lut/lut_argb_variable.h"
#include "framework/lut_exporter.h"
#include "ov_source/editor/editor_stage.h"

namespace ov1
{
namespace
{

class toolbar_test : public testing::Test
{
protected:
    /// Closes the open question with a key, after writing the text, if any, into its field.
    void answer(VSTGUI::VirtualKey key, const std::string& text = {})
    {
        ASSERT_TRUE(is_asking());
        if (!text.empty())
            child_of<VSTGUI::CTextEdit>(*stage.frame->getModalView()->asViewContainer()).setText(text.c_str());
        stage.type(key);
    }
    void yes(const std::string& text = {}) { answer(VSTGUI::VirtualKey::Return, text); }
    void no() { answer(VSTGUI::VirtualKey::Escape); }
    bool is_asking() const { return stage.frame->getModalView() != nullptr; }
    std::string file(const std::string& preset) const
    {
        return stage.home / "Plugin Presets/Veridial/" + preset + ".json";
    }
    const std::optional<preset_choice>& current() { return toolbar.getPresets().get_session().get_current(); }
    void export_table(lut_file kind) { toolbar.getLutExport().run(kind, "Preset"); }
    void save(const std::string& name)
    {
        toolbar.getPresets().save();
        yes(name);
    }

    editor_stage stage;
    COVPluginToolbar& toolbar = stage.toolbar();
};

TEST_F(toolbar_test, a_saved_preset_comes_back_as_one_step_of_the_history)
{
    stage.set("Sky Strength", 40);
    const auto saved = stage.state();
    save("Warm evening");
    ASSERT_FALSE(is_asking());
    EXPECT_EQ(current(), (preset_choice{"Warm evening", false}));
    stage.set("Sky Strength", 70);
    const auto changed = stage.state();
    toolbar.getPresets().load({"Warm evening", false});
    EXPECT_TRUE(stage.state() == saved);
    EXPECT_EQ(stage.undo_position(), 1);
    stage.effect->undo();
    EXPECT_TRUE(stage.state() == changed);
}

TEST_F(toolbar_test, a_star_marks_a_preset_as_long_as_the_grade_differs)
{
    const auto title = [&] { return child_of<COVRoundedGreyButton>(toolbar).getTitle().getString(); };
    stage.set("Sky Strength", 40);
    save("Mine");
    toolbar.toggleBypass();
    EXPECT_EQ(title(), "Mine");
    for (const panel_slot slot : {panel_slot::sky, panel_slot::mids})
    {
        stage.drag_over(stage.pad(slot), -30, -30);
        EXPECT_EQ(title(), "Mine *");
    }
    stage.effect->undo();
    EXPECT_EQ(title(), "Mine *");
    stage.effect->undo();
    EXPECT_EQ(title(), "Mine");
    stage.effect->redo();
    EXPECT_EQ(title(), "Mine *");
}

TEST_F(toolbar_test, a_bundled_preset_is_loaded_and_never_deleted)
{
    stage.home.with_file("Plugin Presets/Veridial/Zebra.json", "x");
    const auto choices = toolbar.getPresets().list().choices;
    ASSERT_GT(choices.size(), 1u);
    EXPECT_EQ(choices[0], (preset_choice{"Zebra", false}));
    EXPECT_TRUE(choices[1].is_bundled);
    const auto before = stage.state();
    toolbar.getPresets().load(choices[1]);
    EXPECT_TRUE(stage.state() != before);
    EXPECT_EQ(current(), choices[1]);
    toolbar.getPresets().remove();
    EXPECT_FALSE(is_asking());
}

TEST_F(toolbar_test, a_refused_preset_is_reported_and_leaves_grade_and_history)
{
    stage.home.with_file("Plugin Presets/Veridial/Broken.json", "{\"parameters\":");
    toolbar.resetGrade();
    stage.set("Sky Strength", 40);
    toolbar.toggleBypass();
    toolbar.getHistory().undo();
    const auto before = stage.state();
    const undo_range history = stage.effect->get_undo_range();
    ASSERT_TRUE(history.can_redo());
    for (const char* name : {"Broken", "Missing"})
    {
        toolbar.getPresets().load({name, false});
        yes();
        EXPECT_TRUE(stage.state() == before);
        EXPECT_EQ(stage.effect->get_undo_range(), history);
        EXPECT_FALSE(current());
    }
}

TEST_F(toolbar_test, saving_over_a_preset_and_deleting_one_need_a_yes)
{
    stage.set("Sky Strength", 40);
    save("Mine");
    const std::string first = text_of_file(file("Mine"));
    ASSERT_FALSE(first.empty());
    stage.set("Sky Strength", 50);
    save("Mine");
    no();
    EXPECT_TRUE(text_of_file(file("Mine")) == first);
    save("Mine");
    yes();
    EXPECT_FALSE(text_of_file(file("Mine")) == first);

    toolbar.getPresets().remove();
    no();
    EXPECT_TRUE(std::filesystem::exists(file("Mine")));
    toolbar.getPresets().remove();
    yes();
    EXPECT_FALSE(std::filesystem::exists(file("Mine")));
    EXPECT_FALSE(current());
    save("a/b");
    yes(); // closes the report
    EXPECT_FALSE(is_asking());
    EXPECT_FALSE(current());
}

TEST_F(toolbar_test, an_exported_table_is_the_one_of_the_grade_as_it_is_now)
{
    stage.set("Mids Hue", 200);
    stage.set("Mids Chroma", 80);
    iobject* found = nullptr;
    ASSERT_TRUE(stage.effect->query_interface("lut_exporter", &found));
    lut_argb_variable table;
    ASSERT_TRUE(static_cast<lut_exporter*>(found)->get_lut(&table));
    std::filesystem::create_directory(stage.home / "expected"); // a table bears its file's name
    const std::pair<lut_file, const char*> cases[] = {
        {lut_file::cube_17, "a.cube"}, {lut_file::cube_32, "b.cube"}, {lut_file::threedl_17, "c.3dl"}};
    for (const auto& [kind, leaf] : cases)
    {
        const std::string expected = stage.home / ("expected/" + std::string(leaf)), path = stage.home / leaf;
        ASSERT_TRUE(kind == lut_file::threedl_17
                        ? table.save_as_3dl(expected, "Veridial", "")
                        : table.save_as_cube(expected, kind == lut_file::cube_32 ? 32 : 17, "Veridial", ""));
        export_table(kind);
        yes(path);
        ASSERT_FALSE(text_of_file(path).empty());
        EXPECT_TRUE(text_of_file(path) == text_of_file(expected)) << leaf;
    }
    const std::string kept = stage.home.with_file("kept.cube", "mine");
    export_table(lut_file::cube_17);
    yes(kept);
    no();
    EXPECT_EQ(text_of_file(kept), "mine");
    export_table(lut_file::cube_17);
    yes(stage.home / "nowhere/a.cube");
    EXPECT_TRUE(is_asking()) << "the failure is reported";
    yes();
}

TEST_F(toolbar_test, bypass_and_reset_are_one_step_each)
{
    const auto at_opening = stage.state();
    stage.set("Sky Strength", 40);
    const auto graded = stage.state();
    toolbar.toggleBypass();
    EXPECT_TRUE(stage.effect->get_bypass());
    toolbar.resetGrade();
    EXPECT_TRUE(stage.state() == at_opening);
    EXPECT_EQ(stage.undo_position(), 2);
    toolbar.getHistory().undo();
    toolbar.getHistory().undo();
    EXPECT_TRUE(stage.state() == graded);
    toolbar.getHistory().redo();
    EXPECT_TRUE(stage.effect->get_bypass());
}

TEST_F(toolbar_test, the_close_button_keeps_the_grade_and_with_shift_discards_it)
{
    const auto at_opening = stage.state();
    VSTGUI::CView* close = nullptr;
    toolbar.forEachChild([&](VSTGUI::CView* each) { close = each; });
    const VSTGUI::Modifiers plain, shift(VSTGUI::ModifierKey::Shift);
    for (const auto& [keys, kept] : {std::pair(plain, true), {shift, false}})
    {
        stage.shown->open = true;
        stage.set("Sky Strength", 40);
        const auto graded = stage.state();
        stage.click_on(*close, keys);
        EXPECT_FALSE(stage.shown->open);
        EXPECT_TRUE(stage.state() == (kept ? graded : at_opening));
    }
}

} // namespace
} // namespace ov1
