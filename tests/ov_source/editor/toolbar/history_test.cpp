#include "editor/toolbar/step_names.h"
#include "ov_source/editor/editor_stage.h"

namespace ov1
{
namespace
{

using states = std::vector<std::vector<std::uint8_t>>;

struct history_stage : editor_stage
{
    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (const history_step& step : toolbar().getHistory().list())
            found.push_back((step.is_present ? "> " : "") + step.name);
        return found;
    }
    /// What a click in the menu does: the menu itself needs a window.
    void choose(std::size_t row) const { effect->jump_undo_stack(toolbar().getHistory().list()[row].position); }
    void inspire() { click_on(*ui->get_controls().inspire); }
    void change(const std::string& parameter) { drag_over(control(parameter), 0, 14); }
};

TEST(history, names_every_gesture_and_goes_to_its_state)
{
    history_stage stage;
    const std::function<void()> gestures[] = {
        [&] { stage.drag_over(stage.pad(panel_slot::sky), -30, -30); },
        [&] { stage.drag_over(stage.control("Global Chroma"), -34, -12); },
        [&] { stage.change("Mids Saturation"); },
        [&] { stage.inspire(); },
        [&] { stage.click_on(stage.button<COVPluginToolbar>("Reset everything")); },
    };
    states kept{stage.state()}; // the latest first, as in the list
    for (const auto& make : gestures)
    {
        make();
        kept.insert(kept.begin(), stage.state());
    }
    const std::vector<std::string> names = {"Reset",         "Random look",          "Mids Saturation",
                                            "Global Chroma", "Sky: Angle, Strength", "At the beginning"};
    for (const std::size_t row : {0u, 3u, 5u, 1u, 0u, 4u, 2u})
    {
        stage.choose(row);
        EXPECT_TRUE(stage.state() == kept[row]) << row;
        auto expected = names;
        expected[row].insert(0, "> ");
        EXPECT_EQ(stage.names(), expected) << "what can be redone is kept";
    }
    stage.change("Shadows Saturation");
    EXPECT_EQ(stage.names(), (std::vector<std::string>{"> Shadows Saturation", "Mids Saturation", "Global Chroma",
                                                       "Sky: Angle, Strength", "At the beginning"}));
    stage.choose(1);
    EXPECT_TRUE(stage.state() == kept[2]);
}

TEST(history, goes_back_by_at_most_31_steps)
{
    history_stage stage;
    states kept;
    for (int i = 0; i < 40; ++i)
    {
        stage.inspire();
        kept.insert(kept.begin(), stage.state());
    }
    EXPECT_EQ(stage.names().size(), 32u);
    stage.choose(31);
    EXPECT_TRUE(stage.state() == kept[31]);
    EXPECT_FALSE(stage.effect->get_undo_range().can_undo());
    stage.choose(0);
    EXPECT_TRUE(stage.state() == kept[0]);
}

TEST(history, a_grade_copied_in_one_editor_is_one_step_in_another)
{
    history_stage stage;
    stage.inspire();
    stage.change("Mids Saturation");
    stage.toolbar().getClipboard().copy();
    const auto copied = stage.state();
    stage.reopen();
    stage.change("Shadows Saturation");
    const auto before = stage.state();
    stage.toolbar().getClipboard().paste();
    EXPECT_TRUE(stage.state() == copied && copied != before);
    EXPECT_EQ(stage.names(), (std::vector<std::string>{"> Pasted grade", "Shadows Saturation", "At the beginning"}));
    stage.effect->undo();
    EXPECT_TRUE(stage.state() == before);
}

TEST(history, a_grade_that_cannot_be_pasted_is_reported_and_leaves_what_can_be_redone)
{
    history_stage stage;
    stage.change("Mids Saturation");
    stage.change("Shadows Saturation");
    stage.effect->undo();
    const auto before = stage.state();
    stage.toolbar().getClipboard().paste(); // nothing was copied
    EXPECT_TRUE(stage.frame->getModalView());
    stage.type(VSTGUI::VirtualKey::Return);
    EXPECT_TRUE(stage.state() == before);
    EXPECT_EQ(stage.effect->get_undo_range(), (undo_range{0, 1, 2}));
}

} // namespace
} // namespace ov1
