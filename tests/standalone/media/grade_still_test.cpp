#include "media/grade_still.h"

#include "media_files.h"

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
    still_reader stored(const std::string& name, const still_info& info, const rows& pixels) const
    {
        return opened(save(name, encoded(name, info, pixels)));
    }

    /// Grades into a file and reads it back.
    rows graded(const still_reader& source, const std::string& name, const row_grade& grade, grade_report& report,
                transfer_choice choice = transfer_choice::automatic, const piece_runner& run = run_in_turn) const
    {
        still_writer writer;
        error why;
        file_bytes bytes;
        EXPECT_TRUE(writer.create(name, source.info(), {.transfer = choice}, why)) << why.reason;
        report = grade_still(source, writer, grade, choice, run);
        EXPECT_TRUE(writer.finish(bytes, why)) << why.reason;
        return all_rows(opened(save("out_" + name, bytes)));
    }
};

void keep(std::size_t, const argb_float* in, argb_float* out, std::size_t count)
{
    std::copy(in, in + count, out);
    std::for_each(out, out + count, [](argb_float& c) { c.a = 0.123f; }); // nobody asks a table for alpha
}

void expect_near(const argb_float& c, const argb_float& expected, float tolerance)
{
    EXPECT_NEAR(c.a, expected.a, tolerance);
    EXPECT_NEAR(c.r, expected.r, tolerance);
    EXPECT_NEAR(c.g, expected.g, tolerance);
    EXPECT_NEAR(c.b, expected.b, tolerance);
}

TEST_F(grading, premultiplied_linear_light_is_graded_straight_and_encoded)
{
    const still_reader source = stored("a.exr", picture_info(1, 1, depth::full_float, alpha_kind::premultiplied),
                                       {{0.5f, 0.25f, 0.107f, 0.0f}});
    argb_float seen;
    grade_report report;
    const row_grade half = [&](std::size_t, const argb_float* in, argb_float* out, std::size_t)
    {
        seen = *in;
        *out = {0.9f, in->r / 2, 1.0f, in->b};
    };
    const rows back = graded(source, "b.exr", half, report);
    // IEC 61966-2-1: 0.5 -> 0.735357, 0.214 -> 0.499956; back 0.367678 -> 0.111332
    expect_near(seen, {0.5f, 0.735357f, 0.499956f, 0.0f}, 2e-6f);
    expect_near(back[0], {0.5f, 0.5f * 0.111332f, 0.5f, 0.0f}, 2e-6f);
    EXPECT_EQ(report.limited_pixels, 0u);
}

TEST_F(grading, alpha_is_the_sources_own)
{
    const rows pixels{{0.2f, 0.2f, 0.4f, 0.6f}, {0.0f, 0.8f, 0.2f, 1.0f}, {1.0f, 0.0f, 1.0f, 0.2f}};
    grade_report report;
    for (const alpha_kind alpha : {alpha_kind::straight, alpha_kind::premultiplied})
    {
        const still_reader source = stored("a.tif", picture_info(3, 1, depth::u8, alpha), pixels);
        rows expected = pixels;
        if (alpha == alpha_kind::premultiplied) // what exceeds alpha is limited
            expected[0] = {0.2f, 0.2f, 0.2f, 0.2f};
        EXPECT_EQ(graded(source, "b.tif", keep, report), expected);
    }
    EXPECT_EQ(report.limited_pixels, 1u) << "where alpha is 0 nothing is";

    const still_reader light = stored("a.exr", picture_info(2, 1, depth::half, alpha_kind::premultiplied),
                                      {{0, 3, 0.5f, -1}, {2, 0.5f, 0.5f, 1}});
    const rows back = graded(light, "b.exr", keep, report);
    EXPECT_EQ(back[0], (argb_float{0, 3, 0.5f, -1})) << "light without a surface passes";
    expect_near(back[1], {2, 0.5f, 0.5f, 1}, 1e-3f);
    EXPECT_EQ(report.limited_pixels, 0u) << "alpha beyond 1 is no colour";
    // 0.25 of light over black is 0.537099 in sRGB, whatever the colour and alpha that made it.
    const still_reader veil =
        stored("a.exr", picture_info(1, 1, depth::half, alpha_kind::premultiplied), {{0.5f, 0.25f, 0.25f, 0.25f}});
    expect_near(graded(veil, "b.jpg", keep, report)[0], {1, 0.537099f, 0.537099f, 0.537099f}, 2.0f / 255);
    EXPECT_TRUE(report.warnings.empty()) << "that alpha is dropped is the writer's to say, once";
    const rows straight = graded(light, "b.png", keep, report);
    expect_near(straight[0], {0, 1, 0.735357f, 0}, 2e-5f);
    expect_near(straight[1], {1, 0.537099f, 0.537099f, 0.735357f}, 2e-5f); // sRGB of 0.25 and of 0.5
}

TEST_F(grading, each_pixel_outside_is_limited_and_counted_once)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const still_reader source =
        stored("a.exr", picture_info(2, 2, depth::full_float),
               {{1, 2, 3, -1}, {1, nan, 0.5f, 0.5f}, {1, 0, 1, 0.5f}, {1, 0.5f, 0.5f, 1.0001f}});
    grade_report report;
    const rows back = graded(source, "b.exr", keep, report);
    expect_near(back[0], {1, 1, 1, 0}, 0);
    expect_near(back[1], {1, 0, 0.5f, 0.5f}, 1e-6f);
    EXPECT_EQ(report.limited_pixels, 3u);
    ASSERT_EQ(report.warnings.size(), 1u);
    EXPECT_EQ(report.warnings[0], "3 of 4 pixels lay outside 0..1 and were limited");
}

TEST_F(grading, transfer_follows_the_source_the_format_and_the_choice)
{
    using enum transfer_choice;
    const float code = 0.6f, light = 0.318547f; // of each other, IEC 61966-2-1
    const struct
    {
        const char *from, *to;
        transfer_choice choice;
        float stored, seen, written;
    } cases[] = {
        {"a.tif", "b.tif", automatic, code, code, code},   {"a.tif", "b.exr", automatic, code, code, light},
        {"a.exr", "b.exr", automatic, light, code, light}, {"a.exr", "b.tif", automatic, light, code, code},
        {"a.exr", "b.exr", none, light, light, light},     {"a.exr", "b.tif", none, light, light, light},
        {"a.tif", "b.tif", linear, light, code, light},    {"a.tif", "b.exr", linear, light, code, light},
        {"a.tif", "b.exr", none, code, code, code},
    };
    for (const auto& c : cases)
        for (const bool bypassed : {false, true})
        {
            SCOPED_TRACE(std::string(c.from) + " to " + c.to + (bypassed ? " bypassed" : ""));
            const depth d = std::string(c.from) == "a.exr" ? depth::full_float : depth::u16;
            const still_reader source = stored(c.from, picture_info(1, 1, d), {{1, c.stored, 0.0f, 1.0f}});
            grade_report report;
            float seen = c.seen;
            const row_grade look = [&](std::size_t y, const argb_float* in, argb_float* out, std::size_t count)
            {
                seen = in->r;
                keep(y, in, out, count);
            };
            const rows back = graded(source, c.to, bypassed ? row_grade() : look, report, c.choice);
            EXPECT_NEAR(seen, c.seen, 1e-5f);
            expect_near(back[0], {1, c.written, 0, 1}, 1e-5f);
        }
}

TEST_F(grading, without_a_grade_samples_pass_untouched)
{
    std::mt19937 random(5);
    const auto wild = [&] { return std::ldexp(static_cast<float>(random()), -28) - 8; };
    const rows pixels = random_rows(35 * 40, true, wild);
    grade_report report;
    const still_reader exr =
        stored("a.exr", picture_info(35, 40, depth::full_float, alpha_kind::premultiplied), pixels);
    EXPECT_EQ(graded(exr, "b.exr", {}, report), pixels) << "beyond 1, below 0, and alpha of any kind";
    const still_reader tiff = stored("a.tif", picture_info(35, 40, depth::u16, alpha_kind::premultiplied), pixels);
    EXPECT_EQ(graded(tiff, "b.tif", {}, report), all_rows(tiff));
    EXPECT_TRUE(report.warnings.empty());
}

TEST_F(grading, rows_may_go_over_threads)
{
    std::mt19937 random(6);
    const rows pixels = random_rows(50 * 101, true, [&] { return static_cast<float>(random() % 256) / 255; });
    const still_reader source = stored("a.png", picture_info(50, 101, depth::u8, alpha_kind::straight), pixels);
    std::mutex guard;
    std::multiset<std::size_t> seen;
    const row_grade invert = [&](std::size_t y, const argb_float* in, argb_float* out, std::size_t count)
    {
        const std::lock_guard lock(guard);
        seen.insert(y);
        for (std::size_t x = 0; x < count; ++x)
            out[x] = {0, in[x].b, in[x].r, 1 - in[x].g};
    };
    const piece_runner backwards_on_two = [](std::size_t pieces, const std::function<void(std::size_t)>& work)
    {
        const auto every_other = [&](std::size_t first)
        {
            for (std::size_t i = first; i < pieces; i += 2)
                work(pieces - 1 - i);
        };
        std::thread other(every_other, 1);
        every_other(0);
        other.join();
    };
    grade_report report;
    for (const char* name : {"b.png", "b.jpg"})
    {
        seen.clear();
        const rows together = graded(source, name, invert, report, transfer_choice::automatic, backwards_on_two);
        EXPECT_EQ(seen.size(), 101u);
        EXPECT_EQ(std::set<std::size_t>(seen.begin(), seen.end()).size(), 101u);
        EXPECT_EQ(together, graded(source, name, invert, report));
    }
}

} // namespace
} // namespace ov1::media
