#include "scopes/scope_counter.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace ov1
{
namespace
{

constexpr scope_selection everything{true, true, true, true};

scope_counts counts_of(const std::vector<argb_float>& pixels, std::size_t width, const scope_sampling& sampling = {},
                       const scope_selection& selection = everything)
{
    scope_counter counter;
    counter.count({pixels.data(), width, pixels.size() / width}, selection, sampling);
    return counter.get_counts();
}

/// Codes 0..255 along each row, green falling, blue at a fifth.
std::vector<argb_float> ramps(std::size_t rows)
{
    std::vector<argb_float> pixels;
    for (std::size_t y = 0; y < rows; ++y)
        for (int x = 0; x < 256; ++x)
            pixels.push_back({0.5f, static_cast<float>(x) / 255, static_cast<float>(255 - x) / 255, 0.2f});
    return pixels;
}

TEST(scope_counter, a_ramp_is_a_diagonal_and_pixels_are_divided_among_columns)
{
    const scope_counts counts = counts_of(ramps(3), 256, {256, 64});
    for (std::size_t x = 0; x < 256; ++x)
    {
        SCOPED_TRACE(x);
        EXPECT_EQ(counts.parade[0].column(x / 4)[x], 3u);
        EXPECT_EQ(counts.parade[1].column(x / 4)[255 - x], 3u);
        EXPECT_EQ(counts.parade[2].column(x / 4)[51], 12u);
        // 0.2126 x + 0.7152 (255 - x) + 0.0722 * 51, in codes
        const double luma = 186.0582 - 0.5026 * static_cast<double>(x);
        EXPECT_EQ(counts.waveform.column(x)[static_cast<std::size_t>(std::lround(luma))], 3u);
        EXPECT_EQ(counts.histogram.bins[0][x], 3u);
    }
}

TEST(scope_counter, colours_are_where_the_formula_of_the_standard_puts_them)
{
    // Cb = (B - Y) / 1.8556 and Cr = (R - Y) / 1.5748, computed by hand, times 255, plus 128.
    const struct
    {
        const char* name;
        argb_float colour;
        std::size_t cb, cr, luma;
    } rows[] = {
        {"grey", {1, 0.4f, 0.4f, 0.4f}, 128, 128, 102},
        {"red", {1, 1, 0, 0}, 99, 255, 54},              // -0.114572, 0.5
        {"red of 75 %", {1, 0.75f, 0, 0}, 106, 224, 41}, // -0.085929, 0.375
        {"green", {1, 0, 1, 0}, 30, 12, 182},            // -0.385428, -0.454153
        {"blue", {1, 0, 0, 1}, 255, 116, 18},            // 0.5, -0.045847
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        const scope_counts counts = counts_of({row.colour, row.colour, row.colour}, 1);
        EXPECT_EQ(counts.vectorscope.at(row.cb, row.cr), 3u);
        EXPECT_EQ(counts.waveform.column(0)[row.luma], 3u);
    }
}

TEST(scope_counter, values_outside_count_at_the_ends_and_nan_as_0)
{
    constexpr float infinity = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    const scope_counts counts =
        counts_of({{1, -3, 1e30f, nan}, {1, -infinity, infinity, -nan}, {nan, 1.5f, 0, -0.f}}, 3);
    EXPECT_EQ(counts.histogram.bins[0][0], 2u);
    EXPECT_EQ(counts.histogram.bins[0][255], 1u);
    EXPECT_EQ(counts.histogram.bins[1][255], 2u);
    EXPECT_EQ(counts.histogram.bins[2][0], 3u);
    EXPECT_EQ(counts.vectorscope.at(30, 12), 2u) << "they are shown as green";
}

TEST(scope_counter, sizes_threads_and_other_scopes_change_no_count)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<float> value(-0.1f, 1.1f);
    scope_counter counter; // one for all sizes: nothing of the previous frame may remain
    for (const auto& [width, height] : {std::pair(517, 133), std::pair(1, 1), std::pair(257, 64), std::pair(3, 9001)})
    {
        SCOPED_TRACE(width);
        std::vector<argb_float> pixels(static_cast<std::size_t>(width * height));
        for (argb_float& p : pixels)
            p = {1, value(random), value(random), value(random)};
        const auto columns = static_cast<std::size_t>(width);
        const scope_counts one = counts_of(pixels, columns, {100, 33, 1, 1});
        counter.count({pixels.data(), columns, pixels.size() / columns}, everything, {100, 33, 1, 4});
        const scope_counts& many = counter.get_counts();
        EXPECT_EQ(one.waveform.bins, many.waveform.bins);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(one.parade[i].bins, many.parade[i].bins);
        EXPECT_EQ(one.vectorscope.bins, many.vectorscope.bins);
        EXPECT_EQ(one.histogram.bins, many.histogram.bins);
        EXPECT_EQ(counts_of(pixels, columns, {}, {.histogram = true}).histogram.bins, one.histogram.bins);
        EXPECT_EQ(one.histogram.pixels(), pixels.size());
    }
}

TEST(scope_counter, a_row_step_counts_the_first_row_of_each_step)
{
    std::vector<argb_float> pixels;
    for (const float v : {0.f, 0.2f, 0.4f, 0.6f, 0.8f, 1.f, 1.f})
        pixels.push_back({1, v, 0, 0});
    const auto red = counts_of(pixels, 1, {1, 1, 3}).histogram.bins[0];
    EXPECT_EQ(red[0] + red[153] + red[255], 3u);
    EXPECT_EQ(red[153], 1u);
}

} // namespace
} // namespace ov1
