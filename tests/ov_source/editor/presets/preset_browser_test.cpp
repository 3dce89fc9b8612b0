#include "editor/presets/preset_cell.h"
#include "editor/presets/preset_panel.h"
#include "ov_source/editor/editor_stage.h"

#include <cmath>

namespace ov1
{
namespace
{

/// An editor that shows a frame, with the preset panel open: two of the user's own presets, then the bundled ones.
struct preset_stage : editor_stage
{
    static constexpr std::size_t own_presets = 2;

    preset_stage()
    {
        for (const auto& [name, chroma] : {std::pair("Zinc Morning", 60.f), {"zinc noon", -80.f}})
        {
            set("Global Chroma", chroma);
            EXPECT_TRUE(preset_manager(effect).save_preset(name, false)) << name;
        }
        set("Global Chroma", 0);
        drag_over(pad(panel_slot::mids), -30, -30);
        show_frame();
        frame->onActivate(true); // else no key arrives
        press_preset_button();
    }
    void press_preset_button() { click_on(button<COVPluginToolbar>("Choose a preset")); }

    /// Null while the panel is closed.
    preset_panel* panel() const
    {
        std::vector<preset_panel*> found;
        return frame->getChildViewsOfType<preset_panel>(found) == 1 ? found.front() : nullptr;
    }
    std::vector<preset_cell*> cells() const
    {
        std::vector<preset_cell*> found;
        panel()->getChildViewsOfType<preset_cell>(found, true);
        return found;
    }
    void point_at(std::size_t preset) { send(VSTGUI::MouseMoveEvent(at(*cells()[preset]))); }
    void wait_for_pictures() const
    {
        for (int turn = 0; turn < 2000 && panel()->count_pictures() < cells().size();
             ++turn, toolkit_guard::process_events())
            ui->idle();
        ASSERT_EQ(panel()->count_pictures(), cells().size());
    }

    /// An effect with that preset and without an editor.
    std::shared_ptr<icomponent_v1> load(std::size_t preset) const
    {
        const auto loaded = create_ccomponent();
        loaded->initialize(std::make_shared<chost_v1>(loaded));
        const preset_choice choice{cells()[preset]->get_name(), preset >= own_presets};
        EXPECT_TRUE(preset_session(loaded).load(choice)) << choice.name;
        return loaded;
    }
    /// Expects the frame through an effect's grade around a point on the screen; `apart` lies between the centres of
    /// its halves.
    void expect_shown(icomponent_v1& graded, const VSTGUI::CPoint& middle, double apart) const
    {
        const auto whole = frame->getViewSize();
        const auto screen = painted(whole.right, whole.bottom, [&](auto& on) { frame->drawRect(&on, whole); });
        graded.notify({event_kind::render_begins});
        for (const double side : {-0.5, 0.5})
        {
            argb_float colour = halves[side > 0];
            graded.get_row_renderer()->render_row(0, &colour, &colour, 1);
            const auto found = pixel(*screen, middle.x + side * apart, middle.y);
            for (const auto& [is, wanted] :
                 {std::pair(found.red, colour.r), {found.green, colour.g}, {found.blue, colour.b}})
                EXPECT_NEAR(is, std::round(wanted * 255), 1) << side << "; zooming rounds once more";
        }
    }
    /// The preview is 706 x 900, of which a bar takes 34.
    void expect_in_preview(icomponent_v1& graded) const { expect_shown(graded, {353, 433}, 353); }
};

TEST(preset_browser, each_cell_shows_the_frame_through_its_own_preset)
{
    const preset_stage stage;
    stage.wait_for_pictures();
    for (const std::size_t preset : {0u, 1u, 2u, 5u})
    {
        SCOPED_TRACE(preset);
        stage.expect_shown(*stage.load(preset), stage.at(*stage.cells()[preset], 0, -10), 74);
    }
}

TEST(preset_browser, a_search_shows_the_names_that_contain_all_of_its_words)
{
    preset_stage stage;
    auto& field = child_of<VSTGUI::CTextEdit>(*stage.panel());
    const VSTGUI::CPoint first = stage.at(*stage.cells()[0]);
    const std::pair<const char*, std::size_t> searches[] = {
        {"MORNING zinc", 1}, {" zinc ", 2}, {"zinc x", 0}, {"", stage.cells().size()}, {"nc oo", 1}};
    for (const auto& [text, count] : searches)
    {
        field.setText(text);
        field.valueChanged();
        EXPECT_EQ(stage.panel()->count_shown(), count) << text;
    }
    stage.press(first.x, first.y);
    stage.ui->idle();
    EXPECT_EQ(stage.toolbar().getPresets().get_session().get_current(), (preset_choice{"zinc noon", false}))
        << "the only match has moved up";
}

TEST(preset_browser, hovering_previews_a_preset_and_a_click_loads_it_as_one_step)
{
    preset_stage stage;
    stage.wait_for_pictures();
    const auto before = stage.state(), expected = stage.load(1)->get_state();
    for (const std::size_t preset : {0u, 1u})
    {
        stage.point_at(preset);
        stage.expect_in_preview(*stage.load(preset));
    }
    stage.send(VSTGUI::MouseMoveEvent({100, 100}));
    stage.expect_in_preview(*stage.effect);
    EXPECT_TRUE(stage.state() == before);
    EXPECT_EQ(stage.undo_position(), 1) << "the step of the pad";
    stage.click_on(*stage.cells()[1]);
    stage.ui->idle();
    EXPECT_FALSE(stage.panel());
    EXPECT_TRUE(stage.state() == expected);
    EXPECT_EQ(stage.undo_position(), 2);
    stage.effect->undo();
    EXPECT_TRUE(stage.state() == before);
}

TEST(preset_browser, escape_closes_only_the_panel_and_changes_nothing)
{
    preset_stage stage;
    const auto before = stage.state();
    stage.wait_for_pictures();
    stage.point_at(1);
    EXPECT_TRUE(stage.type(VSTGUI::VirtualKey::Escape) && stage.type(VSTGUI::VirtualKey::Escape));
    stage.ui->idle();
    EXPECT_FALSE(stage.panel());
    stage.expect_in_preview(*stage.effect);
    EXPECT_TRUE(stage.shown->open) << "Escape twice would close the editor";
    EXPECT_TRUE(stage.state() == before);
    EXPECT_EQ(stage.effect->get_undo_range(), (undo_range{0, 1, 1}));
    for (const bool is_open : {true, false})
    {
        stage.press_preset_button();
        EXPECT_EQ(stage.panel() != nullptr, is_open);
    }
}

} // namespace
} // namespace ov1
