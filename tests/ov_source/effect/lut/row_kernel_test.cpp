#include "effect/lut/row_kernel.h"

#include "effect/lut/instruction_sets.h"

#include <array>
#include <bit>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

namespace ov1
{
namespace
{

using layout = render_table::layout;

constexpr float inf = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();

/// Among them the floats beside grid points, and subnormals.
constexpr std::array unusual = {0.0f,    -0.0f,  1.0f,  -1.0f,  0.0625f, 0.99999994f, 0.93749994f, 1.0000001f, 1e-40f,
                                -1e-40f, 1e-20f, 3e38f, -3e38f, inf,     -inf,        nan,         -nan};

/// Every entry differs, alpha too; with a wide range also in magnitude, so that halfs underflow and overflow.
lut_argb<17> scrambled(bool wide_range = false)
{
    lut_argb<17> table(lut_argb<17>::init_mode::none);
    std::mt19937 engine(71);
    std::uniform_real_distribution<float> any(-0.5f, 1.5f);
    const auto value = [&] { return any(engine) * (wide_range ? std::ldexp(1.0f, int(engine() % 46) - 28) : 1.0f); };
    for (argb_float& entry : table.get_entries())
        entry = {value(), value(), value(), value()};
    return table;
}

/// Small steps as between neighbours in a picture, some large ones, and every eighth value unusual.
std::vector<argb_float> pixels(std::size_t count, unsigned seed)
{
    std::mt19937 engine(seed);
    std::uniform_real_distribution<float> step(-0.02f, 0.02f), leap(-0.2f, 1.2f);
    std::vector<argb_float> row(count);
    argb_float at{0.5f, 0.4f, 0.5f, 0.6f};
    for (argb_float& pixel : row)
    {
        for (const auto channel : {&argb_float::a, &argb_float::r, &argb_float::g, &argb_float::b})
        {
            at.*channel = engine() % 16 == 0 ? leap(engine) : at.*channel + step(engine);
            pixel.*channel = engine() % 8 == 0 ? unusual[engine() % unusual.size()] : at.*channel;
        }
    }
    return row;
}

std::vector<argb_float> looked_up(const lut_argb<17>& table, const std::vector<argb_float>& row)
{
    std::vector<argb_float> colours;
    for (const argb_float& pixel : row)
        colours.push_back(table.lookup(pixel));
    return colours;
}

template <class sample>
bool same_bits(const sample* a, const sample* b, std::size_t count)
{
    return count == 0 || std::memcmp(a, b, count * sizeof(sample)) == 0;
}

/// Calls test for both layouts on every instruction set that is present.
template <class function>
void everywhere(const lut_argb<17>& table, const function& test)
{
    for (const instruction_set& set : present_instruction_sets())
    {
        const forced_instruction_set forced(set);
        for (const layout form : {layout::with_deltas, layout::lines_only})
        {
            SCOPED_TRACE(set.name + (form == layout::with_deltas ? ", with deltas" : ", lines only"));
            test(render_table(table, form));
        }
    }
}

TEST(row_kernel, rows_of_floats_have_the_bits_of_lookup)
{
    const auto in = pixels(100'000, 1);
    const lut_argb<17> table = scrambled();
    const auto wanted = looked_up(table, in);
    everywhere(table,
               [&](const render_table& rendered)
               {
                   std::vector<argb_float> out(in.size());
                   row_kernel::render_argb(rendered, in.data(), out.data(), in.size());
                   EXPECT_TRUE(same_bits(out.data(), wanted.data(), in.size()));
               });
}

TEST(row_kernel, every_width_and_alignment_gives_the_same_bits_and_writes_nothing_else)
{
    constexpr std::size_t widest = 300;
    const auto in = pixels(widest, 2);
    const lut_argb<17> table = scrambled();
    const auto wanted = looked_up(table, in);
    const argb_float untouched{9, 9, 9, 9};
    everywhere(table,
               [&](const render_table& rendered)
               {
                   for (std::size_t width = 0; width <= widest; ++width)
                   {
                       const std::size_t first = width % 4; // argb floats are aligned to 4 bytes only
                       std::vector<argb_float> out(widest + 8, untouched);
                       argb_float* row = out.data() + first;
                       row_kernel::render_argb(rendered, in.data(), row, width);
                       ASSERT_TRUE(same_bits(row, wanted.data(), width)) << width;
                       ASSERT_EQ(row[width], untouched) << width;

                       std::vector<float> bytes(4 * widest + 3);
                       auto* place = reinterpret_cast<argb_float*>(bytes.data() + first % 3);
                       std::copy_n(in.data(), width, place);
                       row_kernel::render_argb(rendered, place, place, width);
                       ASSERT_TRUE(same_bits(place, wanted.data(), width)) << width << " in place";
                   }
               });
}

TEST(row_kernel, rows_of_halfs_are_widened_looked_up_and_rounded)
{
    // Every half stands in every channel.
    std::vector<half_bits> in(4 * 65'536 + 4 * 300);
    for (std::size_t i = 0; i < in.size(); ++i)
        in[i] = static_cast<half_bits>(i / 4 * (i % 4 * 2 + 1) + i % 4 * 20'000);
    const lut_argb<17> table = scrambled(true);
    std::vector<half_bits> wanted;
    for (std::size_t i = 0; i < in.size(); i += 4)
    {
        const argb_float to =
            table.lookup({0, half_to_float(in[i]), half_to_float(in[i + 1]), half_to_float(in[i + 2])});
        for (const float value : {to.r, to.g, to.b, to.a})
            wanted.push_back(float_to_half(value));
    }
    everywhere(table,
               [&](const render_table& rendered)
               {
                   std::vector<half_bits> out(in.size(), 0x1234);
                   row_kernel::render_half(rendered, in.data(), out.data(), 65'536);
                   EXPECT_TRUE(same_bits(out.data(), wanted.data(), std::size_t{4} * 65'536));
                   for (std::size_t width = 0; width <= 300; ++width)
                   {
                       std::vector<half_bits> row(in.begin() + 1000, in.begin() + 1000 + 1204);
                       row_kernel::render_half(rendered, row.data(), row.data(), width);
                       ASSERT_TRUE(same_bits(row.data(), wanted.data() + 1000, 4 * width)) << width;
                       ASSERT_TRUE(same_bits(&row[4 * width], &in[1000 + 4 * width], 4)) << width;
                   }
               });
}

TEST(row_kernel, planes_give_the_colours_of_the_row)
{
    const auto row = pixels(1300, 3);
    std::array<std::vector<float>, 3> in, wanted;
    const lut_argb<17> table = scrambled();
    for (const argb_float& pixel : row)
    {
        const argb_float to = table.lookup(pixel);
        const std::pair<float, float> channels[] = {{pixel.r, to.r}, {pixel.g, to.g}, {pixel.b, to.b}};
        for (std::size_t c = 0; c < 3; ++c)
        {
            in[c].push_back(channels[c].first);
            wanted[c].push_back(channels[c].second);
        }
    }
    everywhere(table,
               [&](const render_table& rendered)
               {
                   for (std::size_t width = 0; width <= row.size(); width += width < 300 ? 1 : 500)
                   {
                       auto out = in;
                       const rgb_planes<float> planes{out[0].data(), out[1].data(), out[2].data()};
                       row_kernel::render_planes(rendered, {planes.r, planes.g, planes.b}, planes, width);
                       for (std::size_t c = 0; c < 3; ++c)
                       {
                           ASSERT_TRUE(same_bits(out[c].data(), wanted[c].data(), width)) << width;
                           ASSERT_TRUE(same_bits(out[c].data() + width, in[c].data() + width, row.size() - width));
                       }
                   }
               });
}

TEST(instruction_sets, one_at_a_time_is_forced_and_the_best_comes_back)
{
    const auto sets = present_instruction_sets();
    ASSERT_FALSE(sets.empty());
    {
        const forced_instruction_set forced(sets.back());
        ASSERT_EQ(present_instruction_sets().size(), 1u);
        EXPECT_EQ(present_instruction_sets().front().name, sets.back().name);
    }
    EXPECT_EQ(present_instruction_sets().size(), sets.size());
}

} // namespace
} // namespace ov1
