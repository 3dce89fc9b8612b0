#include "editor/controls/modal/tooltip_layer.h"
#include "editor/controls/style/bitmap_pixels.h"
#include "editor/controls/widgets/value_readout.h"
#include "ov_source/editor/controls/widgets/control_stage.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

using VSTGUI::CPoint;
constexpr VSTGUI::CRect area(0.0, 0.0, 400.0, 300.0);

struct place_case
{
    const char* what;
    CPoint at;
    CPoint size;
    CPoint corner;
};

TEST(tooltip_place, is_below_the_mouse_or_where_the_text_stays_visible)
{
    const place_case cases[] = {
        {"below and to the right", {50, 60}, {100, 30}, {62, 80}},
        {"on whole points", {50.7, 60.9}, {100, 30}, {62, 80}},
        {"further left", {350, 60}, {100, 30}, {300, 80}},
        {"above", {50, 290}, {100, 30}, {62, 252}},
        {"wider and higher than the window", {50, 60}, {500, 400}, {0, 0}},
    };
    for (const auto& [what, mouse, size, corner] : cases)
        EXPECT_EQ(tooltip_place(mouse, size, area), VSTGUI::CRect(corner, size)) << what;
}

TEST(readout_place, is_above_the_handle_or_where_the_text_stays_visible)
{
    const place_case cases[] = {
        {"above, centred", {200, 150}, {60, 22}, {170, 115}},
        {"below", {200, 20}, {60, 22}, {170, 33}},
        {"further right", {10, 150}, {60, 22}, {0, 115}},
        {"further left", {395, 150}, {60, 22}, {340, 115}},
        {"a handle beyond the lower edge", {200, 400}, {60, 22}, {170, 278}},
    };
    for (const auto& [what, handle, size, corner] : cases)
        EXPECT_EQ(readout_place(handle, size, area), VSTGUI::CRect(corner, size)) << what;
}

TEST(set_pixels, puts_rows_from_the_top_and_channels_in_their_place)
{
    const std::uint32_t pixels[] = {0xff010203, 0xff111213, 0xff212223, 0xff313233, 0xff414243, 0xff515253};
    const auto bitmap = VSTGUI::makeOwned<VSTGUI::CBitmap>(3.0, 2.0);
    set_pixels(*bitmap, pixels);
    for (std::uint32_t i = 0; i < 6; ++i)
    {
        const auto code = [&](int shift) { return static_cast<std::uint8_t>(pixels[i] >> shift); };
        EXPECT_EQ(pixel(*bitmap, i % 3, i / 3), VSTGUI::CColor(code(16), code(8), code(0))) << i;
    }
}

} // namespace
} // namespace ov1
