// Cells, layout and canvas of contact sheets.
#include "standalone/jobs/effect_instance.h"
#include "standalone/sheets/canvas.h"
#include "standalone/sheets/sheet_cells.h"
#include "standalone/sheets/sheet_layout.h"
#include "standalone/sheets/text_painter.h"

#include <gtest/gtest.h>
#include <set>

namespace ov1
{
namespace
{

TEST(sheet_layout, keeps_the_ratio_and_fits_the_width)
{
    const struct
    {
        const char* name;
        std::size_t cells, columns, source_width, source_height, max_width;
        std::size_t laid_columns, rows, width, height;
    } table[] = {
        {"small pictures are not enlarged", 5, 2, 90, 60, 2400, 2, 3, 90, 60},
        {"large ones are reduced", 4, 4, 4000, 2000, 1000, 4, 1, 235, 118},
        {"more columns than cells", 2, 8, 90, 60, 2400, 2, 1, 90, 60},
        {"no column", 3, 0, 90, 60, 2400, 1, 3, 90, 60},
        {"a line of one pixel", 1, 1, 5000, 1, 512, 1, 1, 488, 1},
        {"a column of one pixel", 1, 1, 1, 5000, 512, 1, 1, 1, 976},
    };
    for (const auto& row : table)
    {
        SCOPED_TRACE(row.name);
        const auto laid = lay_out_sheet(row.cells, row.columns, row.source_width, row.source_height, row.max_width);
        EXPECT_EQ(laid.columns, row.laid_columns);
        EXPECT_EQ(laid.rows, row.rows);
        EXPECT_EQ(laid.picture_width, row.width);
        EXPECT_EQ(laid.picture_height, row.height);
        EXPECT_LE(laid.width(), row.max_width);
        EXPECT_EQ(laid.left_of(row.cells - 1) + laid.picture_width + sheet_layout::margin <= laid.width(), true);
        EXPECT_EQ(laid.top_of(row.cells - 1) + laid.picture_height + sheet_layout::caption_height +
                      sheet_layout::margin,
                  laid.height());
    }
}

TEST(sheet_cells, every_look_is_a_grade_at_full_and_half_strength)
{
    const auto cells = look_cells();
    ASSERT_EQ(cells.size(), 48u);
    EXPECT_EQ(cells.size() % look_columns, 0u) << "whole rows";
    effect_instance effect;
    std::set<std::string> names;
    std::set<std::string> grades;
    for (std::size_t i = 0; i < cells.size(); ++i)
    {
        SCOPED_TRACE(cells[i].name);
        const auto [assignments, failures] = resolve_grade(cells[i].grade, effect.get_parameters());
        EXPECT_TRUE(failures.empty());
        ASSERT_FALSE(assignments.empty());
        EXPECT_EQ(std::abs(assignments.back().value), i % 2 == 0 ? 100.0 : 50.0);
        EXPECT_TRUE(cells[i].name.ends_with(i % 2 == 0 ? " 100 %" : " 50 %"));
        names.insert(cells[i].name);
        std::string grade;
        for (const assignment& a : assignments)
            grade += std::to_string(a.parameter) + '=' + std::to_string(a.value) + ' ';
        grades.insert(grade);
    }
    EXPECT_EQ(names.size(), cells.size());
    EXPECT_EQ(grades.size(), cells.size()) << "no look twice";
}

TEST(sheet_cells, presets_follow_the_ungraded_picture_in_a_square)
{
    for (const auto& [presets, columns] : {std::pair<std::size_t, std::size_t>{1, 2}, {3, 2}, {4, 3}, {8, 3}, {9, 4}})
    {
        SCOPED_TRACE(presets);
        std::size_t found = 0;
        const auto cells = preset_cells(std::vector<std::string>(presets, "Noir"), found);
        EXPECT_EQ(found, columns);
        ASSERT_EQ(cells.size(), presets + 1);
        EXPECT_TRUE(cells[0].grade.bypass && cells[0].grade.presets.empty());
        EXPECT_EQ(cells.back().grade.presets, std::vector<std::string>{"Noir"});
    }
}

TEST(canvas, clips_what_lies_outside_and_blends_straight_alpha)
{
    canvas target(3, 2, {1.0f, 0.2f, 0.4f, 0.6f});
    const std::vector<argb_float> picture{
        {1.0f, 1.0f, 0.0f, 0.0f}, {0.5f, 0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 0.0f, 1.0f}, {1.0f, 0.0f, 0.0f, 1.0f}};
    target.paint(1, 1, picture.data(), 2, 2);     // its second row is below the canvas
    target.paint(2, 0, picture.data() + 2, 2, 1); // its second pixel is beside the canvas
    target.blend(3, 0, picture[0], 1.0f);
    target.blend(0, 2, picture[0], 1.0f);
    const auto expect = [&](std::size_t x, std::size_t y, float r, float g, float b)
    {
        SCOPED_TRACE(std::to_string(x) + ',' + std::to_string(y));
        const argb_float& p = target.row(y)[x];
        EXPECT_EQ(p.a, 1.0f);
        EXPECT_FLOAT_EQ(p.r, r);
        EXPECT_FLOAT_EQ(p.g, g);
        EXPECT_FLOAT_EQ(p.b, b);
    };
    expect(0, 0, 0.2f, 0.4f, 0.6f);
    expect(2, 0, 0.2f, 0.4f, 0.6f); // alpha 0
    expect(0, 1, 0.2f, 0.4f, 0.6f);
    expect(1, 1, 1.0f, 0.0f, 0.0f);
    expect(2, 1, 0.1f, 0.7f, 0.3f);
}

TEST(text_painter, shortens_a_text_to_its_width)
{
    text_painter texts(14);
    if (!texts.has_face())
        GTEST_SKIP() << "no font is installed";
    const std::string text = "Skin Tone Brightness of a very long name";
    constexpr std::size_t width = 80;
    ASSERT_GT(texts.width_of(text), width);
    canvas target(200, 24, {1.0f, 0.0f, 0.0f, 0.0f});
    texts.paint(target, 10, 16, text, width, {1.0f, 1.0f, 0.5f, 0.25f});
    std::size_t first = 200, last = 0;
    for (std::size_t y = 0; y < 24; ++y)
        for (std::size_t x = 0; x < 200; ++x)
            if (const argb_float& p = target.row(y)[x]; p.r > 0.0f)
            {
                first = std::min(first, x);
                last = std::max(last, x);
                EXPECT_FLOAT_EQ(p.g, p.r / 2);
                EXPECT_FLOAT_EQ(p.b, p.r / 4);
            }
    EXPECT_GE(first, 9u);
    EXPECT_LE(first, 14u);
    EXPECT_LE(last, 10 + width);
    EXPECT_GE(last, 10 + width - 20) << "no more is left out than needed";
}

} // namespace
} // namespace ov1
