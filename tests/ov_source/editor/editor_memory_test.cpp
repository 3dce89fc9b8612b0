#include "editor/editor_memory.h"

#include "editor/preview/preview_bar.h"
#include "editor/scopes/scopes_panel.h"
#include "ov_source/editor/editor_stage.h"

#include "vstgui/lib/platform/platformfactory.h"

#include <set>

namespace ov1
{
namespace
{

struct memory_stage : editor_stage
{
    double split() const { return child_of<preview_view>(*frame, true).get_split(); }
    void click_scope(const std::string& title)
    {
        std::vector<COVRoundedGreyButton*> found;
        ui->get_scopes().getChildViewsOfType<COVRoundedGreyButton>(found);
        click_on(**std::ranges::find_if(found, [&](auto* b) { return b->getTitle() == title.c_str(); }));
    }
    void click_bar(const std::string& tooltip) { click_on(button<preview_bar>(tooltip)); }
};

TEST(editor_memory, a_new_editor_opens_as_the_last_one_was_left)
{
    memory_stage stage;
    stage.show_frame();
    stage.click_bar("Before and after, side by side");
    stage.press(353, 433); // the line, in the middle of the 706 beside the column
    stage.drag(140, 433);
    stage.release(140, 433);
    ASSERT_NEAR(stage.split(), 140 / 706., 1e-9);
    stage.click_bar("Scopes");
    stage.click_scope("Histo");
    stage.click_scope("Wave");
    stage.toolbar().getLutExport().run(lut_file::cube_17, "Preset");
    std::filesystem::create_directory(stage.home / "tables");
    child_of<VSTGUI::CTextEdit>(*stage.frame->getModalView()->asViewContainer())
        .setText((stage.home / "tables/a.cube").c_str());
    stage.type(VSTGUI::VirtualKey::Return);
    stage.shown->resized(1300, 700);
    for (int session = 0; session < 2; ++session) // the second makes no change
    {
        stage.reopen();
        EXPECT_EQ(stage.ui->get_rect(), (rect{0, 0, 1300, 700}));
        EXPECT_NEAR(stage.split(), 140 / 706., 1e-9);
        EXPECT_TRUE(stage.ui->get_scopes().isVisible());
        EXPECT_EQ(stage.ui->get_scopes().get_choice(), (scope_choice{{.vectorscope = true, .histogram = true}}));
        EXPECT_EQ(stage.toolbar().getLutExport().get_last_folder(), stage.home / "tables");
    }
}

TEST(editor_memory, invalid_settings_count_as_missing)
{
    memory_stage stage; // on a screen of 1920 x 1080
    const rect suitable = stage.ui->get_rect();
    const std::pair<const char*, std::vector<const char*>> damage[] = {
        {"editor window size",
         {"", "x", "1440", "1440x", "x769", "1440x769x3", "1440 x 769", "0x0", "-1440x769", "1x1", "1023x769",
          "1440x527", "99999999999x769", "1921x769", "1440x1081"}},
        {"editor split", {"", "half", "-0.01", "1.01", "nan", "inf", "0.2 "}},
        {"editor shows scopes", {"", "y", "1"}},
        {"editor scopes", {"", "nonsense", "skin"}},
    };
    for (const auto& [key, texts] : damage)
        for (const char* text : texts)
        {
            SCOPED_TRACE(std::string(key) + ": " + text);
            stage.ui->close(); // which writes its own settings
            ASSERT_TRUE(iutils::get_instance().set_string(key, text));
            stage.reopen();
            EXPECT_EQ(stage.ui->get_rect(), suitable);
            EXPECT_EQ(stage.split(), 0.5);
            EXPECT_FALSE(stage.ui->get_scopes().isVisible());
            EXPECT_EQ(stage.ui->get_scopes().get_choice(), scope_choice());
        }
    stage.ui->close();
    stage.home.with_file("settings/veridial.settings", "\xff\xfe %G\nstring editor%20split 0.25\nstring editor%2");
    stage.reopen();
    EXPECT_EQ(stage.split(), 0.25) << "the valid lines are read";
}

TEST(scopes_in_the_editor, each_one_shows_its_count_of_the_frame_beside_the_preview)
{
    memory_stage stage;
    scopes_panel& panel = stage.ui->get_scopes();
    const auto preview_left = [&] { return child_of<COVScrollView>(*stage.frame).getViewSize().left; };
    const auto picture_at = [&](float luminance)
    {
        stage.set("Global Luminance", luminance);
        stage.show_frame();
        const auto drawn = painted(260, 900, [&](auto& context) { panel.drawRect(&context, panel.getViewSize()); });
        return VSTGUI::getPlatformFactory().createBitmapMemoryPNGRepresentation(drawn->getPlatformBitmap());
    };
    stage.click_bar("Scopes");
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(preview_left(), panel.getViewSize().right);
    stage.click_scope("Vector"); // only the waveform is left
    std::set<std::vector<std::uint8_t>> pictures;
    for (const auto& [shown, next] :
         {std::pair("Wave", "Parade"), {"Parade", "Vector"}, {"Vector", "Histo"}, {"Histo", "Wave"}})
    {
        SCOPED_TRACE(shown);
        const auto dark = picture_at(-30);
        EXPECT_TRUE(picture_at(0) != dark) << "the graded frame is counted";
        EXPECT_TRUE(picture_at(-30) == dark && pictures.insert(dark).second);
        stage.click_scope(next);
        stage.click_scope(shown);
        EXPECT_TRUE(stage.effect->get_host()->component_is_dirty()) << "a frame is requested";
    }
    stage.click_bar("Scopes");
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(preview_left(), 0);
}

} // namespace
} // namespace ov1
