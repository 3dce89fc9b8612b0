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

/// Every parameter at its lower bound, then at its upper bound, then the defaults, then random grades.
std::vector<grade_settings> grades(std::size_t count, unsigned seed)
{
    std::mt19937 engine(seed);
    std::vector<grade_settings> rows(count);
    std::generate(rows.begin() + 3, rows.end(), [&] { return random_settings(engine); });
    for (std::size_t i = 1; i < parameter_count; ++i)
    {
        rows[0].settings[i].value = parameter_table[i].min;
        rows[1].settings[i].value = parameter_table[i].max;
    }
    return rows;
}

TEST_F(build_lut_test, agrees_with_the_double_precision_build)
{
    const auto rows = grades(63, 2026);
    for (std::size_t row = 0; row < rows.size(); ++row)
        // Thousandths of a percent, doubled by the sums, and the rounding of floats.
        EXPECT_LT(largest_difference(built(rows[row]), test::double_precision_build(rows[row], look)), 2e-4) << row;
}

TEST_F(build_lut_test, has_the_bits_of_the_plain_code_on_every_instruction_set)
{
    const auto rows = grades(500, 500);
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

TEST_F(build_lut_test, the_bypass_gives_the_exact_identity_whatever_else_is_set)
{
    grade_settings settings;
    settings.settings[static_cast<std::size_t>(parameter_index::global_bypass)].value = 1;
    settings.settings[static_cast<std::size_t>(parameter_index::shadows_chroma)].value = 80;
    EXPECT_EQ(built(settings), lut_argb<17>());
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
