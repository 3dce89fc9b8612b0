#include "editor/panel/panel_layout.h"

#include "framework/view/view_size.h"
#include "ov_source/editor/editor_stage.h"

namespace ov1
{

namespace
{

TEST(view_size_for_screen, follows_the_screen_between_its_limits)
{
    const int cases[][4] = {
        {1366, 768, 1229, 528}, {2560, 1440, 2304, 1231}, {1920, 1080, 1728, 923},
        {1024, 600, 1024, 528}, {640, 480, 1024, 528},    {1422, 900, 1279, 528},
        {1423, 900, 1280, 684}, {3840, 1080, 3456, 972},  {3840, 2160, 3456, 1846},
    };
    for (const auto& [screen_width, screen_height, width, height] : cases)
        EXPECT_EQ(view_size_for_screen(screen_width, screen_height), (rect{0, 0, width, height})) << screen_width;
}

TEST(panel_layout, the_window_is_preview_toolbar_and_a_column_of_fixed_width)
{
    EXPECT_EQ(place_preview(1229, 528), (rect{0, 0, 735, 528}));
    EXPECT_EQ(place_toolbar(1229), (rect{735, 0, 494, 64}));
    EXPECT_EQ(place_column(1229, 528), (rect{735, 64, 494, 464}));
}

TEST(panel_layout, pictures_of_odd_sizes_are_rounded_half_up)
{
    const rect pad = place_pad({100.5, 90.4}, -150, 160); // (482 - 102) / 2 - 150
    EXPECT_EQ(pad, (rect{40, 160, 102, 91}));
    EXPECT_EQ(place_panel_label(pad), (rect{41, 141, 101, 12}));
    EXPECT_EQ(place_arc(pad, {31, 60}, true), (rect{58, 176, 31, 60}));  // 91 - 17.5 - 15.5; 205.5 - 30
    EXPECT_EQ(place_arc(pad, {31, 60}, false), (rect{93, 176, 31, 60})); // 91 + 17.5 - 15.5
    EXPECT_EQ(place_slider(pad, {99, 22}, 1), (rect{42, 273, 99, 22}));  // 91 - 49.5; 160 + 91 + 22
    EXPECT_EQ(slider_travel({42, 273, 99, 22}, 13.6), (control_travel{42, 127}));
}

TEST(panel_layout, a_press_at_an_arcs_inset_gives_the_end_of_its_range_and_not_before)
{
    const editor_stage stage;
    const std::pair<const char*, double> arcs[] = {{"Global Chroma", 4},     {"Global Luminance", 4},
                                                   {"Shadows Lightness", 4}, {"Skin Tone Brightness", 4},
                                                   {"Mids Range", 9},        {"Protect Skin Tones", 9}};
    for (const auto& [name, inset] : arcs)
        for (const double up : {1.0, -1.0})
        {
            SCOPED_TRACE(name);
            VSTGUI::CControl& arc = stage.control(name);
            VSTGUI::CPoint end = arc.getViewSize().getCenter();
            end.y -= up * (60 - inset); // half of 120
            VSTGUI::MouseDownEvent press(end, VSTGUI::MouseButton::Left);
            arc.dispatchEvent(press);
            EXPECT_EQ(arc.getValueNormalized(), up > 0 ? 1.0f : 0.0f);
            VSTGUI::MouseMoveEvent back({end.x, end.y + up}, VSTGUI::MouseButton::Left);
            arc.dispatchEvent(back);
            EXPECT_NE(arc.getValueNormalized(), up > 0 ? 1.0f : 0.0f);
            VSTGUI::MouseUpEvent release(back.mousePosition, VSTGUI::MouseButton::Left);
            arc.dispatchEvent(release);
        }
}

} // namespace
} // namespace ov1
