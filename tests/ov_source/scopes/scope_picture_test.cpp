#include "scopes/scope_counter.h"

#include <cmath>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

scope_counts counts_of(const std::vector<argb_float>& pixels, std::size_t width)
{
    scope_counter counter;
    counter.count({pixels.data(), width, pixels.size() / width}, {true, true, true, true}, {width, width});
    return counter.get_counts();
}

int brightness(const scope_picture& picture, int x, int y)
{
    const std::uint32_t p = picture.row(y)[x];
    return static_cast<int>((p & 255) + (p >> 8 & 255) + (p >> 16 & 255));
}

/// The position of the brightest pixel in a part of a picture.
std::pair<int, int> brightest(const scope_picture& picture, const rect& part)
{
    std::pair<int, int> place{part.x, part.y};
    for (int y = part.y; y < part.y + part.height; ++y)
        for (int x = part.x; x < part.x + part.width; ++x)
            if (brightness(picture, x, y) > brightness(picture, place.first, place.second))
                place = {x, y};
    return place;
}

TEST(scope_picture, a_waveform_has_level_0_at_the_bottom_and_column_0_at_the_left)
{
    std::vector<argb_float> dark_to_bright;
    for (const float v : {0.25f, 0.75f})
        dark_to_bright.push_back({1, v, v, v});
    scope_picture picture;
    picture.reset(40, 120);
    draw_waveform(counts_of(dark_to_bright, 2).waveform, {255, 255, 255}, {0, 0, 40, 120}, 1, picture);
    // The plot's 110 rows begin 5 below the top; level 191 and 64 of 255 are measured from its lower end.
    EXPECT_NEAR(brightest(picture, {30, 6, 1, 108}).second, 5 + 109 * 0.25, 1);
    EXPECT_NEAR(brightest(picture, {10, 6, 1, 108}).second, 5 + 109 * 0.75, 1);
}

TEST(scope_picture, only_clipped_columns_are_marked)
{
    const std::vector<argb_float> pixels{{1, 0, 0, 0}, {1, 0.5f, 0.5f, 0.5f}, {1, 2, 2, 2}};
    scope_picture picture;
    picture.reset(30, 100);
    draw_waveform(counts_of(pixels, 3).waveform, {255, 255, 255}, {0, 0, 30, 100}, 1, picture);
    const int plain = brightness(picture, 15, 0);
    EXPECT_GT(brightness(picture, 5, 99), plain);
    EXPECT_GT(brightness(picture, 25, 0), plain);
    for (const auto& [x, y] : {std::pair(5, 0), std::pair(15, 99), std::pair(25, 99)})
        EXPECT_EQ(brightness(picture, x, y), plain) << x << ", " << y;
}

TEST(scope_picture, vectorscope_colours_are_in_their_squares_and_skin_near_its_line)
{
    const rect area{10, 4, 221, 201};
    for (const argb_float& c :
         {argb_float{1, 0.75f, 0, 0}, argb_float{1, 0, 0.75f, 0.75f}, argb_float{1, 0.75f, 0, 0.75f}})
    {
        scope_picture picture;
        picture.reset(240, 210);
        draw_vectorscope(counts_of({c}, 1).vectorscope, false, area, 1, picture);
        const vectorscope_place at = place_of(colour_difference_of(c.r, c.g, c.b), area);
        const auto found = brightest(picture, area);
        EXPECT_NEAR(found.first + 0.5, at.x, 1.5);
        EXPECT_NEAR(found.second + 0.5, at.y, 1.5);
    }
    scope_picture blue;
    blue.reset(240, 210);
    draw_vectorscope(counts_of({{1, 0, 0, 1}}, 1).vectorscope, false, area, 1, blue);
    const vectorscope_place full = place_of({0.5f, -0.0458f}, area);
    EXPECT_GT(brightness(blue, static_cast<int>(full.x), static_cast<int>(full.y)), 200);
    EXPECT_LT(brightness(blue, static_cast<int>(full.x) + 5, static_cast<int>(full.y)), 100)
        << "no colour is beyond 0.5";
    // 123 degrees: 0.545 left of the centre and 0.839 above it, in radii.
    scope_picture with, without;
    for (scope_picture* picture : {&with, &without})
    {
        picture->reset(240, 210);
        draw_vectorscope(counts_of({{1, 0, 0, 0}}, 1).vectorscope, picture == &with, area, 1, *picture);
    }
    const vectorscope_place end = place_of({-0.5f * 0.545f * 0.9f, 0.5f * 0.839f * 0.9f}, area);
    const int x = static_cast<int>(end.x), y = static_cast<int>(end.y);
    EXPECT_GT(brightness(with, x, y), brightness(without, x, y));
}

TEST(scope_picture, a_single_pixel_is_visible_and_more_are_brighter)
{
    std::vector<argb_float> pixels(5000, {1, 0.2f, 0.2f, 0.2f});
    pixels[7].g = 0.6f;
    scope_picture picture;
    picture.reset(10, 270);
    draw_waveform(counts_of(pixels, 1).parade[1], {255, 255, 255}, {0, 0, 10, 270}, 1, picture);
    EXPECT_LT(brightness(picture, 5, 100) + 20, brightness(picture, 5, 109)) << "0.6 of 259 rows from the lower end";
}

TEST(scope_picture, drawing_stays_inside_pictures_of_every_size)
{
    std::vector<argb_float> pixels;
    for (int i = 0; i < 64; ++i)
        pixels.push_back({1, static_cast<float>(i) / 40, 0.3f, 1 - static_cast<float>(i) / 50});
    const scope_counts counts = counts_of(pixels, 16);
    for (const auto& [width, height] :
         {std::pair(0, 0), std::pair(1, 1), std::pair(3, 11), std::pair(17, 2), std::pair(2, 600), std::pair(601, 31)})
    {
        SCOPED_TRACE(width);
        scope_picture picture; // the sanitizers detect writes outside it
        picture.reset(width, height);
        const rect area{0, 0, width, height};
        draw_waveform(counts.waveform, {255, 255, 255}, area, 2, picture);
        draw_parade(counts.parade, area, 2, picture);
        draw_vectorscope(counts.vectorscope, true, area, 2, picture);
        draw_histogram(counts.histogram, area, 2, picture);
        EXPECT_EQ(picture.pixels.size(), static_cast<std::size_t>(width * height));
        for (const std::uint32_t p : picture.pixels)
            EXPECT_EQ(p >> 24, 255u);
    }
}

TEST(scope_picture, histograms_add_channels_and_show_small_counts)
{
    std::vector<argb_float> pixels(100, {1, 0.4f, 0.2f, 0.2f}); // levels 102 and 51, no line of the scale
    pixels[0] = {1, 0.6f, 0.2f, 0.2f};
    scope_picture picture;
    picture.reset(264, 208); // 256 x 200 and a margin of 4: a column for each level
    draw_histogram(counts_of(pixels, 1).histogram, {0, 0, 264, 208}, 1, picture);
    const auto height_at = [&](int level)
    {
        int y = 204;
        while (y > 4 && brightness(picture, 4 + level, y - 1) > brightness(picture, 4 + level + 8, y - 1) + 20)
            --y;
        return 204 - y;
    };
    EXPECT_NEAR(height_at(102), 199, 2) << "99 of the full count of 100, by the square root";
    EXPECT_NEAR(height_at(51), 200, 1);
    EXPECT_NEAR(height_at(153), 20, 1) << "1 of 100";
}

} // namespace
} // namespace ov1
