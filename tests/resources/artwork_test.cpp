// Compares the drawings, as the build wrote them, with the panel that they must fit.
#include "support/picture_file.h"

#include <algorithm>
#include <tuple>

namespace ov1
{
namespace
{

const char* const toolbar_icons[] = {"presets", "save",        "delete",     "export", "undo",    "redo",
                                     "reset",   "close",       "bypass",     "manual", "split",   "before_after",
                                     "fit",     "actual_size", "eyedropper", "scopes", "history", "search"};

TEST(artwork, fits_the_panel_at_two_pixels_to_a_point)
{
    const auto even = [](const char* name)
    {
        SCOPED_TRACE(name);
        picture_file file(name);
        EXPECT_GT(file.width, 0);
        EXPECT_EQ(file.width % 2 + file.height % 2, 0);
        return file;
    };
    const picture_file pad = even("mids_xy_background.png"), track = even("slider_background.png");
    const picture_file arc = even("gray_slider_background_left.png"), handle = even("slider_handle.png");
    // In pixels: columns are 150 points apart and the outer ones begin 91 points from the edge; pads begin at 160 and
    // the next ones at 458, with a label of 12 points 7 above them and one below each of two sliders.
    EXPECT_LT(arc.width, 2 * (91 - 2));
    EXPECT_LE(pad.width / 2 + 2 * 2 + arc.width, 2 * 150);
    EXPECT_LE(track.width, pad.width);
    EXPECT_LE(2 * 161 + pad.height + 2 * track.height + 2 * 12, 2 * (458 - 12 - 7));
    EXPECT_LT(handle.width * 2, track.width);
    EXPECT_LE(handle.height + 2 * (12 + 11), track.height); // below a label and the value in its font

    const std::tuple<const char*, int, int> fixed[] = {{"ov_icon.png", 128, 128},
                                                       {"veridial_icon_128.png", 128, 128},
                                                       {"veridial_icon_48.png", 48, 48},
                                                       {"fcpx_large.png", 384, 216},
                                                       {"fcpx_small.png", 192, 108}};
    for (const auto& [name, width, height] : fixed)
        EXPECT_EQ(std::pair(even(name).width, even(name).height), std::pair(width, height));
}

TEST(artwork, sprites_are_brighter_when_hovered_and_orange_when_on)
{
    std::vector<std::string> names{"inspire_dice.png"};
    for (const char* icon : toolbar_icons)
        names.push_back(std::string("toolbar_") + icon + ".png");
    for (const std::string& name : names)
    {
        SCOPED_TRACE(name);
        const picture_file sheet(name);
        const int frame = name == names.front() ? 88 : 48; // the dice's button is 86 x 63 points
        EXPECT_EQ(std::pair(sheet.width, sheet.height), std::pair(2 * frame, 2 * frame));
        const auto brightest = [&](int column, int row)
        {
            argb_float found{0, 0, 0, 0};
            for (int y = 0; y < frame; ++y)
                for (int x = 0; x < frame; ++x)
                    if (const argb_float p = sheet.at_pixel(column * frame + x, row * frame + y); p.a > 0.9f)
                        found = {1, std::max(found.r, p.r), std::max(found.g, p.g), std::max(found.b, p.b)};
            return found;
        };
        const argb_float off = brightest(0, 0), hovered = brightest(1, 0), on = brightest(0, 1), both = brightest(1, 1);
        EXPECT_NEAR(off.r, 0xb0 / 255.0, 0.02);
        EXPECT_GT(hovered.r, off.r + 0.1f);
        EXPECT_GT(on.r, on.b + 0.2f);
        EXPECT_GT(both.b, on.b + 0.1f);
        for (int x = 0; x < sheet.width; ++x) // frames do not touch
        {
            EXPECT_EQ(sheet.at_pixel(x, frame).a + sheet.at_pixel(x, frame - 1).a, 0.0f) << x;
            EXPECT_EQ(sheet.at_pixel(frame, x).a + sheet.at_pixel(frame - 1, x).a, 0.0f) << x;
        }
    }
}

TEST(artwork, panels_tile_between_margins_of_three_points)
{
    for (const char* name : {"panel_first.png", "panel.png"})
    {
        SCOPED_TRACE(name);
        const picture_file panel(name);
        constexpr int margin = 6;
        const argb_float surface = panel.at_pixel(margin, margin);
        EXPECT_EQ(surface.a, 1.0f);
        EXPECT_GT(panel.at_pixel(0, margin).g, surface.g);
        for (int y = 0; y < panel.height; ++y)
            for (int x = margin; x < panel.width - margin; ++x)
            {
                EXPECT_EQ(panel.at_pixel(x, y).g, panel.at_pixel(margin, y).g);
                EXPECT_EQ(panel.at_pixel(y, x).g, panel.at_pixel(y, margin).g);
            }
    }
}

} // namespace
} // namespace ov1
