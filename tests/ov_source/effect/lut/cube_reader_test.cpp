#include "effect/lut/cube_reader.h"

#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

/// Red, green and blue of a lookup.
std::array<float, 3> at(const cube_table& table, float r, float g, float b)
{
    const argb_float c = table.lookup({0.25f, r, g, b});
    EXPECT_EQ(c.a, 0.25f);
    return {c.r, c.g, c.b};
}

cube_table table_of(const std::string& text)
{
    auto table = cube_table::read(text);
    EXPECT_TRUE(table) << table.error().reason;
    return table ? *table : cube_table();
}

TEST(cube_reader, red_varies_fastest_and_values_between_are_interpolated)
{
    // Corner (r, g, b) holds r, 2 g + r, 4 b: every axis and every channel differs.
    std::string text = "\xEF\xBB\xBF# made by hand\r\nTITLE \"a \"quoted\" title\"\r\n\r\nLUT_3D_SIZE 2\r\n";
    for (int b = 0; b < 2; ++b)
        for (int g = 0; g < 2; ++g)
            for (int r = 0; r < 2; ++r)
                text +=
                    std::to_string(r) + " \t" + std::to_string(2 * g + r) + ".0 +" + std::to_string(4 * b) + "e0\r\n";
    const cube_table table = table_of(text);
    EXPECT_EQ(table.get_title(), "a \"quoted\" title");
    EXPECT_EQ(at(table, 1, 0, 0), (std::array{1.0f, 1.0f, 0.0f}));
    EXPECT_EQ(at(table, 0, 1, 0), (std::array{0.0f, 2.0f, 0.0f}));
    EXPECT_EQ(at(table, 0.25f, 0.5f, 0.75f), (std::array{0.25f, 1.25f, 3.0f}));
    EXPECT_EQ(at(table, 7, -7, std::numeric_limits<float>::quiet_NaN()), (std::array{1.0f, 1.0f, 0.0f}));
    float r[] = {0.25f}, g[] = {0.5f}, b[] = {0.75f};
    table.apply({r, g, b}, 1);
    EXPECT_EQ((std::array{r[0], g[0], b[0]}), (std::array{0.25f, 1.25f, 3.0f}));
}

TEST(cube_reader, a_domain_stretches_each_channel_by_itself)
{
    const cube_table table =
        table_of("DOMAIN_MAX 1 2 3\nLUT_1D_SIZE 3\nDOMAIN_MIN -1 0 1\n0 0 0\n0.5 0.25 0.125\n1 1 1");
    EXPECT_FALSE(table.is_3d());
    EXPECT_EQ(at(table, 0, 1, 2), (std::array{0.5f, 0.25f, 0.125f}));
    EXPECT_EQ(at(table, 0.5f, 1.5f, 2.5f), (std::array{0.75f, 0.625f, 0.5625f}));
    EXPECT_EQ(at(table, -9, 9, 1), (std::array{0.0f, 1.0f, 0.0f}));
    EXPECT_EQ(at(table_of("LUT_1D_SIZE 2\nLUT_1D_INPUT_RANGE 0 4\n0 0 0\n1 1 1\n"), 1, 2, 3),
              (std::array{0.25f, 0.5f, 0.75f}));
}

TEST(cube_reader, damage_is_reported_with_its_line)
{
    const struct
    {
        const char* text;
        const char* reason;
    } rows[] = {
        {"", "no LUT_1D_SIZE or LUT_3D_SIZE in it"},
        {"TITLE \"t\"\n0 0 0\n", "line 2: an entry before the size"},
        {"LUT_3D_SIZE 1\n", "line 1: a size is a whole number from 2 to 256"},
        {"LUT_3D_SIZE 257\n", "line 1: a size is a whole number from 2 to 256"},
        {"LUT_3D_SIZE -2\n", "line 1: a size is a whole number from 2 to 256"},
        {"LUT_1D_SIZE 2.5\n", "line 1: a size is a whole number from 2 to 65536"},
        {"LUT_1D_SIZE 2\nLUT_3D_SIZE 2\n", "line 2: a second size"},
        {"#\nLUT_1D_SIZES 2\n", "line 2: no such keyword"},
        {"LUT_1D_SIZE 2\n0 0 0\n", "ends after 1 of 2 entries"},
        {"LUT_1D_SIZE 2\n0 0 0\n1 1 1\n1 1 1\n", "line 4: more than 2 entries"},
        {"LUT_1D_SIZE 2\n0 0\n1 1 1\n", "line 2: three numbers are needed"},
        {"LUT_1D_SIZE 2\n0 0 0 0\n1 1 1\n", "line 2: three numbers are needed"},
        {"LUT_1D_SIZE 2\n0,5 0 0\n1 1 1\n", "line 2: three numbers are needed"},
        {"LUT_1D_SIZE 2\n0 nan 0\n1 1 1\n", "line 2: three numbers are needed"},
        {"LUT_1D_SIZE 2\n0 0 1e99\n1 1 1\n", "line 2: three numbers are needed"},
        {"LUT_1D_SIZE 2\nDOMAIN_MIN 0 0\n", "line 2: three numbers are needed"},
        {"LUT_1D_SIZE 2\nDOMAIN_MIN 0 1 0\n0 0 0\n1 1 1\n", "line 3: the domain above it is empty"},
        {"LUT_1D_SIZE 2\nLUT_1D_INPUT_RANGE 0\n", "line 2: two numbers are needed"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.text);
        const auto read = cube_table::read(row.text);
        ASSERT_FALSE(read);
        EXPECT_EQ(read.error(), (failure{failure_kind::invalid_grade, {}, row.reason}));
    }
}

} // namespace
} // namespace ov1
