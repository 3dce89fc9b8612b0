#include "effect/build/build_lut.h"

#include "effect/lut/instruction_sets.h"
#include "effect/reference/build_lut_reference.h"
#include "ov_source/effect/build/double_precision_build.h"
#include "ov_source/effect/synthetic_looks.h"
#include "platform/iutils.h"
#include "platform/utils_guard.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace ov1
{
namespace
{

class build_lut_test : public testing::Test
{
protected:
    lut_argb<17> built(const grade_settings& settings)
    {
        build_lut(settings, looks, skin, table);
        return table;
    }

    static test::grid look(std::size_t number)
    {
        const lut_argb<17> table = test::synthetic_look(number);
        test::grid grid;
        for (const argb_float& e : table.get_entries())
            grid.push_back({e.r, e.g, e.b});
        return grid;
    }

    veridial_luts looks;
    skin_tables skin;
    lut<17> table;
};

grade_settings with(std::initializer_list<std::pair<parameter_index, float>> values)
{
    grade_settings settings;
    for (const auto& [i, v] : values)
        settings.settings[static_cast<std::size_t>(i)].value = v;
    return settings;
}

/// A third of the values is at a bound or at the default, where steps are skipped or limited.
grade_settings random_settings(std::mt19937& engine)
{
    grade_settings settings;
    for (std::size_t i = 1; i < parameter_count; ++i)
    {
        const parameter_row& row = parameter_table[i];
        const float extremes[] = {row.min, 0.0f, row.max};
        settings.settings[i].value = engine() % 3 == 0
                                         ? extremes[engine() % 3]
                                         : std::uniform_real_distribution<float>(row.min, row.max)(engine);
    }
    return settings;
}

double largest_difference(const lut_argb<17>& table, const test::grid& reference)
{
    double largest = 0.0;
    for (std::size_t i = 0; i < reference.size(); ++i)
    {
        const argb_float& e = table.get_entries()[i];
        largest = std::max({largest, std::abs(e.r - reference[i][0]), std::abs(e.g - reference[i][1]),
                            std::abs(e.b - reference[i][2])});
    }
    return largest;
}

TEST_F(build_lut_test, random_settings_agree_with_the_double_precision_build)
{
    std::mt19937 engine(2026);
    for (int round = 0; round < 60; ++round)
    {
        SCOPED_TRACE(round);
        const grade_settings settings = random_settings(engine);
        // Thousandths of a percent, doubled by the sums, and the rounding of floats.
        EXPECT_LT(largest_difference(built(settings), test::double_precision_build(settings, look)), 2e-4);
    }
}

TEST_F(build_lut_test, has_the_bits_of_the_plain_code_on_every_instruction_set)
{
    std::mt19937 engine(500);
    std::vector<grade_settings> rows(500);
    std::generate(rows.begin() + 3, rows.end(), [&] { return random_settings(engine); });
    for (std::size_t i = 1; i < parameter_count; ++i) // all at one end, then at the other; row 2 is the defaults
    {
        rows[0].settings[i].value = parameter_table[i].min;
        rows[1].settings[i].value = parameter_table[i].max;
    }
    for (std::size_t row = 0; row < rows.size(); ++row)
    {
        lut<17> wanted;
        build_lut_reference(rows[row], looks, skin, wanted);
        for (const instruction_set& set : present_instruction_sets())
        {
            SCOPED_TRACE(set.name + ", settings " + std::to_string(row));
            const forced_instruction_set forced(set);
            lut_argb<17> got(lut_argb<17>::init_mode::none);
            build_lut(rows[row], looks, skin, got);
            ASSERT_EQ(std::memcmp(got.get_entries().data(), wanted.get_entries().data(), 4913 * sizeof(argb_float)), 0);
        }
    }
}

TEST_F(build_lut_test, each_direction_of_a_pad_is_the_table_that_belongs_there)
{
    const struct
    {
        parameter_index angle, strength;
        std::size_t first_look;
    } pads[] = {{parameter_index::film_contrast_angle, parameter_index::film_contrast_strength, 0},
                {parameter_index::sky_angle, parameter_index::sky_strength, 4},
                {parameter_index::greenery_angle, parameter_index::greenery_strength, 8}};
    for (const auto& pad : pads)
        for (std::size_t direction = 0; direction < 4; ++direction)
        {
            SCOPED_TRACE(pad.first_look + direction);
            const auto settings = with({{pad.angle, 90.0f * static_cast<float>(direction)}, {pad.strength, 100.0f}});
            const argb_float got = built(settings).get_direct(5, 8, 11);
            const argb_float look = test::synthetic_look(pad.first_look + direction).get_direct(5, 8, 11);
            // The default's round trip through thousandths scales by 256 / 255: at most 0.004.
            EXPECT_NEAR(got.r, look.r, 0.005);
            EXPECT_NEAR(got.g, look.g, 0.005);
            EXPECT_NEAR(got.b, look.b, 0.005);
        }
}

TEST_F(build_lut_test, defaults_differ_from_the_identity_only_by_the_scale_of_the_conversion)
{
    const lut_argb<17> defaults = built({});
    const lut_argb<17> identity;
    for (std::size_t i = 0; i < identity.get_entries().size(); ++i)
    {
        const argb_float &got = defaults.get_entries()[i], &id = identity.get_entries()[i];
        for (const auto channel : {&argb_float::r, &argb_float::g, &argb_float::b})
            ASSERT_NEAR(got.*channel, std::min(id.*channel * 256 / 255, 1.0f), 3e-5) << i;
    }
}

TEST_F(build_lut_test, the_bypass_gives_the_exact_identity_whatever_else_is_set)
{
    const auto settings = with({{parameter_index::global_bypass, 1}, {parameter_index::shadows_chroma, 80}});
    EXPECT_EQ(built(settings), lut_argb<17>());
}

TEST_F(build_lut_test, luma_outside_its_range_neither_overflows_nor_wraps)
{
    // 78 + 10 + 20 percent: above white.
    const auto white = with({{parameter_index::highlights_range, 10}, {parameter_index::highlights_lightness, 10}});
    const argb_float light = built(white).get_direct(14, 14, 14);
    EXPECT_GT(light.r, 14 / 16.0f);
    EXPECT_LE(light.r, 1.0f);
    const auto black = with({{parameter_index::shadows_range, -10}, {parameter_index::shadows_lightness, -10}});
    const argb_float dark = built(black).get_direct(2, 2, 2);
    EXPECT_LT(dark.g, 2 / 16.0f);
    EXPECT_GE(dark.g, 0.0f);
}

TEST(veridial_luts, a_missing_table_is_the_identity_and_the_others_load)
{
    const auto folder = std::filesystem::path(testing::TempDir()) / "veridial_one_look_missing";
    test::write_synthetic_looks(folder);
    std::filesystem::remove(folder / "sky_100.bin");
    const std::string before = getenv("VERIDIAL_RESOURCES");
    setenv("VERIDIAL_RESOURCES", folder.c_str(), 1);
    const auto utils = make_system_utils();
    setenv("VERIDIAL_RESOURCES", before.c_str(), 1);
    const utils_guard in_force(*utils);
    const veridial_luts looks;
    std::filesystem::remove_all(folder);
    EXPECT_EQ(*looks.sky()[1], lut_argb<17>());
    EXPECT_EQ(*looks.sky()[0], test::synthetic_look(4));
    EXPECT_EQ(looks.saturation(zone::highlights, false), test::synthetic_look(17));
}

} // namespace
} // namespace ov1
