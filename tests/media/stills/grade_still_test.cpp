#include "media/stills/grade_still.h"

#include "support/media_files.h"

#include <mutex>
#include <set>
#include <thread>

namespace ov1::media
{
namespace
{

class grading : public media_test
{
protected:
    /// Grades into a file and reads it back.
    rows graded(const still_reader& source, const std::string& name, const row_grade& grade,
                transfer_choice choice = transfer_choice::automatic, const piece_runner& run = run_in_turn)
    {
        still_writer writer;
        const auto created = writer.create(name, source.info(), {.transfer = choice});
        EXPECT_TRUE(created) << reason_of(created);
        report = grade_still(source, writer, grade, choice, run);
        const auto bytes = writer.finish();
        EXPECT_TRUE(bytes) << reason_of(bytes);
        return all_rows(opened("out_" + name, *bytes));
    }

    grade_report report; ///< the latest
};

void keep(std::size_t, argb_float* row, std::size_t count)
{
    std::for_each(row, row + count, [](argb_float& c) { c.a = 0.123f; }); // a table's alpha is not used
}

void expect_near(const argb_float& c, const argb_float& expected, float tolerance)
{
    for (const auto channel : {&argb_float::a, &argb_float::r, &argb_float::g, &argb_float::b})
        EXPECT_NEAR(c.*channel, expected.*channel, tolerance);
}

constexpr alpha_kind premultiplied = alpha_kind::premultiplied;

TEST_F(grading, premultiplied_linear_light_is_graded_straight_and_encoded)
{
    const still_info info = picture_info(1, 1, depth::full_float, premultiplied);
    const still_reader source = stored("a.exr", info, {{0.5f, 0.25f, 0.107f, 0.0f}});
    argb_float seen;
    const row_grade half = [&](std::size_t, argb_float* row, std::size_t)
    {
        seen = *row;
        *row = {0.9f, row->r / 2, 1.0f, row->b};
    };
    const rows back = graded(source, "b.exr", half);
    // IEC 61966-2-1: 0.5 -> 0.735357, 0.214 -> 0.499956; back 0.367678 -> 0.111332
    expect_near(seen, {0.5f, 0.735357f, 0.499956f, 0.0f}, 2e-6f);
    expect_near(back[0], {0.5f, 0.5f * 0.111332f, 0.5f, 0.0f}, 2e-6f);
    EXPECT_EQ(report.limited_pixels, 0u);
}

TEST_F(grading, alpha_is_the_sources_own)
{
    const rows pixels{{0.2f, 0.2f, 0.4f, 0.6f}, {0.0f, 0.8f, 0.2f, 1.0f}, {1.0f, 0.0f, 1.0f, 0.2f}};
    const auto through_tiff = [&](alpha_kind alpha)
    { return graded(stored("a.tif", picture_info(3, 1, depth::u8, alpha), pixels), "b.tif", keep); };
    EXPECT_EQ(through_tiff(alpha_kind::straight), pixels);
    EXPECT_EQ(through_tiff(premultiplied), (rows{{0.2f, 0.2f, 0.2f, 0.2f}, pixels[1], pixels[2]}));
    EXPECT_EQ(report.limited_pixels, 1u) << "what exceeds alpha, but not where alpha is 0";

    const still_info two = picture_info(2, 1, depth::half, premultiplied);
    const still_reader light = stored("a.exr", two, {{0, 3, 0.5f, -1}, {2, 0.5f, 0.5f, 1}});
    const rows back = graded(light, "b.exr", keep);
    EXPECT_EQ(back[0], (argb_float{0, 3, 0.5f, -1})) << "light without a surface passes";
    expect_near(back[1], {2, 0.5f, 0.5f, 1}, 1e-3f);
    EXPECT_EQ(report.limited_pixels, 0u) << "alpha beyond 1 is no colour";
    // 0.25 of light over black is 0.537099 in sRGB, whatever the colour and alpha that made it.
    const still_info one = picture_info(1, 1, depth::half, premultiplied);
    const still_reader veil = stored("a.exr", one, {{0.5f, 0.25f, 0.25f, 0.25f}});
    expect_near(graded(veil, "b.jpg", keep)[0], {1, 0.537099f, 0.537099f, 0.537099f}, 2.0f / 255);
    EXPECT_TRUE(report.warnings.empty()) << "that alpha is dropped is the writer's to say, once";
    const rows straight = graded(light, "b.png", keep);
    expect_near(straight[0], {0, 1, 0.735357f, 0}, 2e-5f);
    expect_near(straight[1], {1, 0.537099f, 0.537099f, 0.735357f}, 2e-5f); // sRGB of 0.25 and of 0.5
}

TEST_F(grading, each_pixel_outside_is_limited_and_counted_once)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const rows pixels{{1, 2, 3, -1}, {1, nan, 0.5f, 0.5f}, {1, 0, 1, 0.5f}, {1, 0.5f, 0.5f, 1.0001f}};
    const still_reader source = stored("a.exr", picture_info(2, 2, depth::full_float), pixels);
    const rows back = graded(source, "b.exr", keep);
    expect_near(back[0], {1, 1, 1, 0}, 0);
    expect_near(back[1], {1, 0, 0.5f, 0.5f}, 1e-6f);
    EXPECT_EQ(report.limited_pixels, 3u);
    EXPECT_EQ(report.warnings, std::vector<std::string>{"3 of 4 pixels lay outside 0..1 and were limited"});
}

TEST_F(grading, transfer_follows_the_source_the_format_and_the_choice)
{
    using enum transfer_choice;
    const float code = 0.6f, light = 0.318547f; // of each other, IEC 61966-2-1
    const std::tuple<const char*, const char*, transfer_choice, float, float, float> cases[] = {
        {"a.tif", "b.tif", automatic, code, code, code},   {"a.tif", "b.exr", automatic, code, code, light},
        {"a.exr", "b.exr", automatic, light, code, light}, {"a.exr", "b.tif", automatic, light, code, code},
        {"a.exr", "b.exr", none, light, light, light},     {"a.exr", "b.tif", none, light, light, light},
        {"a.tif", "b.tif", linear, light, code, light},    {"a.tif", "b.exr", linear, light, code, light},
        {"a.tif", "b.exr", none, code, code, code},
    };
    for (const auto& [from, to, choice, in_file, expected, written] : cases)
        for (const bool bypassed : {false, true})
        {
            SCOPED_TRACE(std::string(from) + " to " + to + (bypassed ? " bypassed" : ""));
            const depth d = std::string(from) == "a.exr" ? depth::full_float : depth::u16;
            const still_reader source = stored(from, picture_info(1, 1, d), {{1, in_file, 0.0f, 1.0f}});
            float seen = expected;
            const row_grade look = [&](std::size_t y, argb_float* row, std::size_t count)
            {
                seen = row->r;
                keep(y, row, count);
            };
            const rows back = graded(source, to, bypassed ? row_grade() : look, choice);
            EXPECT_NEAR(seen, expected, 1e-5f);
            expect_near(back[0], {1, written, 0, 1}, 1e-5f);
        }
}

TEST_F(grading, without_a_grade_samples_pass_untouched)
{
    std::mt19937 random(5);
    const auto wild = [&] { return std::ldexp(static_cast<float>(random()), -28) - 8; };
    const rows pixels = random_rows(35 * 40, true, wild);
    const still_reader exr = stored("a.exr", picture_info(35, 40, depth::full_float, premultiplied), pixels);
    EXPECT_EQ(graded(exr, "b.exr", {}), pixels) << "beyond 1, below 0, and alpha of any kind";
    const still_reader tiff = stored("a.tif", picture_info(35, 40, depth::u16, premultiplied), pixels);
    EXPECT_EQ(graded(tiff, "b.tif", {}), all_rows(tiff));
    EXPECT_TRUE(report.warnings.empty());
}

TEST_F(grading, rows_may_go_over_threads)
{
    std::mt19937 random(6);
    const rows pixels = random_rows(50 * 101, true, [&] { return static_cast<float>(random() % 256) / 255; });
    const still_reader source = stored("a.png", picture_info(50, 101, depth::u8, alpha_kind::straight), pixels);
    std::mutex guard;
    std::multiset<std::size_t> seen;
    const row_grade invert = [&](std::size_t y, argb_float* row, std::size_t count)
    {
        const std::lock_guard lock(guard);
        seen.insert(y);
        for (std::size_t x = 0; x < count; ++x)
            row[x] = {0, row[x].b, row[x].r, 1 - row[x].g};
    };
    const piece_runner backwards_on_two = [](std::size_t pieces, const std::function<void(std::size_t)>& work)
    {
        const auto every_other = [&](std::size_t first)
        {
            for (std::size_t i = first; i < pieces; i += 2)
                work(pieces - 1 - i);
        };
        std::jthread other(every_other, 1);
        every_other(0);
    };
    for (const char* name : {"b.png", "b.jpg"})
    {
        seen.clear();
        const rows together = graded(source, name, invert, transfer_choice::automatic, backwards_on_two);
        EXPECT_TRUE(seen.size() == 101 && std::set(seen.begin(), seen.end()).size() == 101);
        EXPECT_EQ(together, graded(source, name, invert));
    }
}

} // namespace
} // namespace ov1::media
