#include "editor/preview/display_picture.h"
#include "editor/preview/preview_geometry.h"
#include "shared/argb_float.h"
#include "shared/image.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace ov1
{
namespace
{

constexpr preview_geometry wide{1000, 500, 500, 400, 34};

TEST(preview_geometry, fits_above_the_covered_part_up_to_the_largest_zoom)
{
    const std::pair<preview_geometry, double> cases[] = {
        {wide, 0.5},
        {{500, 1000, 500, 400, 0}, 0.4},
        {{500, 1000, 500, 400, 34}, 0.366},
        {{100, 50, 500, 400, 34}, 5},
        {{10, 10, 500, 400, 0}, 8},
        {{}, 1},
        {{100, 50, 500, 34, 34}, 1},
    };
    for (const auto& [geometry, expected] : cases)
        EXPECT_DOUBLE_EQ(geometry.fit_zoom(), expected);
    EXPECT_EQ(wide.limit_zoom(0.1), 0.5);
    EXPECT_EQ(wide.limit_zoom(9), 8);
    const preview_point centred = preview_geometry{100, 50, 500, 400, 34}.picture_corner(1);
    EXPECT_EQ(centred, (preview_point{200, 158}));
}

TEST(preview_geometry, steps_go_from_fitting_to_the_largest_and_back)
{
    const preview_geometry geometry{1000, 1000, 400, 400, 0};
    const double steps[] = {0.4, 0.5, 2. / 3, 1, 1.5, 2, 3, 4, 6, 8, 8};
    double zoom = geometry.fit_zoom();
    for (std::size_t i = 1; i < std::size(steps); ++i)
        EXPECT_DOUBLE_EQ(zoom = geometry.next_zoom(zoom, true), steps[i]);
    for (std::size_t i = std::size(steps) - 2; i-- > 0;)
        EXPECT_DOUBLE_EQ(zoom = geometry.next_zoom(zoom, false), steps[i]);
    EXPECT_EQ(geometry.next_zoom(0.4, false), 0.4);
    EXPECT_EQ(geometry.next_zoom(0.7, true), 1);
}

TEST(preview_geometry, the_point_under_the_mouse_stays_there_where_scrolling_allows_it)
{
    EXPECT_EQ(wide.content_size(2), (preview_point{2000, 1034}));
    EXPECT_EQ(wide.content_size(0.5), (preview_point{500, 400}));
    const std::tuple<double, preview_point, preview_point, preview_point> cases[] = {
        {2, {300, 200}, {100, 50}, {500, 350}}, // zoom, in the picture, in the view, offset
        {2, {0, 0}, {250, 200}, {0, 0}},        // not beyond the left and the top
        {2, {1000, 500}, {0, 0}, {1500, 634}},  // nor beyond the right; the last rows can be scrolled above the bar
        {0.5, {800, 100}, {10, 10}, {0, 0}},    // nothing to scroll
    };
    for (const auto& [zoom, in_picture, in_view, expected] : cases)
        EXPECT_EQ(wide.offset_for(zoom, in_picture, in_view), expected);
    EXPECT_EQ(wide.to_picture(2, {600, 400}), (preview_point{300, 200}));
    EXPECT_EQ(wide.to_content(0.5, {0, 0}), (preview_point{0, 58})) << "(366 - 250) / 2";
}

TEST(convert_to_display, reads_rows_of_either_origin_and_limits_and_rounds_channels)
{
    const float nan = std::numeric_limits<float>::quiet_NaN(), huge = std::numeric_limits<float>::infinity();
    const argb_float rows[2][2] = {{{nan, 0.2f, 0.5f, 1.f}, {0, -1.f, nan, 7.f}},
                                   {{1, huge, -huge, 0.6f / 255}, {1, 0.4f / 255, 1, 0}}};
    const std::uint32_t top[] = {0xff3380ff, 0xff0000ff}, bottom[] = {0xffff0001, 0xff00ff00};
    for (const auto origin : {image::origin::top_left, image::origin::bottom_left})
    {
        image frame(2, 2, image::pixel_type::argb_f32, origin);
        std::copy_n(&rows[0][0], 4, reinterpret_cast<argb_float*>(frame.pixels()));
        display_picture shown{9, 1, std::vector<std::uint32_t>(9)};
        convert_to_display(frame, shown);
        ASSERT_EQ(shown.pixels.size(), 4u);
        const bool is_down = origin == image::origin::top_left;
        EXPECT_TRUE(std::equal(top, top + 2, shown.row(is_down ? 0 : 1)));
        EXPECT_TRUE(std::equal(bottom, bottom + 2, shown.row(is_down ? 1 : 0)));
    }
}

display_picture noise(std::uint32_t width, std::uint32_t height)
{
    std::mt19937 engine(11);
    display_picture made{width, height, std::vector<std::uint32_t>(width * height)};
    for (std::uint32_t& pixel : made.pixels)
        pixel = static_cast<std::uint32_t>(engine()) | 0xff000000u;
    return made;
}

/// The part of a picture row or column that a screen pixel covers, in picture pixels.
std::pair<double, double> beneath(double s, double zoom)
{
    const double middle = (s + 0.5) / zoom, half = std::max(1 / zoom, 1.0) / 2;
    return {middle - half, middle + half};
}

/// The mean over that rectangle, the picture's edge continued, by channel.
double plain_mean(const display_picture& p, double x, double y, double zoom, std::uint8_t (*channel)(std::uint32_t))
{
    const auto [left, right] = beneath(x, zoom);
    const auto [top, bottom] = beneath(y, zoom);
    const auto part = [](int i, double begin, double end)
    { return std::max(0.0, std::min(end, i + 1.0) - std::max(begin, double(i))); };
    double sum = 0;
    for (int v = -20; v < 40; ++v)
        for (int u = -20; u < 40; ++u)
            sum += part(u, left, right) * part(v, top, bottom) *
                   channel(p.row(std::clamp(v, 0, int(p.height) - 1))[std::clamp(u, 0, int(p.width) - 1)]);
    return sum / (right - left) / (bottom - top);
}

TEST(draw_zoomed, below_2_each_pixel_is_the_mean_of_the_area_under_it)
{
    const display_picture picture = noise(11, 7);
    const display_window windows[] = {
        {0, 0, 6, 4, 0.5}, {1.25, 0.5, 4, 3, 0.37}, {3.5, 2, 9, 5, 1.5}, {-2, -3, 12, 9, 0.8}};
    for (const display_window& w : windows)
    {
        SCOPED_TRACE(w.zoom);
        const std::size_t row_bytes = w.width * 4 + 8;
        std::vector<std::uint32_t> target(w.height * row_bytes / 4, 0x12345678);
        draw_zoomed(picture, w, reinterpret_cast<std::uint8_t*>(target.data()), row_bytes);
        for (std::uint32_t y = 0; y < w.height; ++y)
        {
            for (std::uint32_t x = 0; x < w.width; ++x)
                for (const auto channel : {red_of, green_of, blue_of})
                    // Rounded once to 14 bits, once to 6 and once to whole numbers.
                    EXPECT_NEAR(channel(target[y * row_bytes / 4 + x]),
                                plain_mean(picture, w.left + x, w.top + y, w.zoom, channel), 0.6)
                        << x << ' ' << y;
            EXPECT_EQ(target[y * row_bytes / 4 + w.width], 0x12345678u) << "what lies between the rows";
        }
    }
}

TEST(draw_zoomed, from_2_on_pixels_are_squares_and_at_1_they_are_copies)
{
    const display_picture picture = noise(5, 4);
    for (const auto& [zoom, left, top] : {std::tuple(1.0, 2.0, 1.0), {2.0, 3.0, 0.0}, {3.0, 1.0, 5.0}})
    {
        std::vector<std::uint32_t> target(6);
        draw_zoomed(picture, {left, top, 3, 2, zoom}, reinterpret_cast<std::uint8_t*>(target.data()), 12);
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(target[static_cast<std::size_t>(i)],
                      picture.row(static_cast<std::uint32_t>((top + i / 3) / zoom))[int((left + i % 3) / zoom)])
                << zoom << ' ' << i;
    }
}

} // namespace
} // namespace ov1
