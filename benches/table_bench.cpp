#include "table_bench.h"

#include "effect/build/build_lut.h"
#include "effect/lut/instruction_sets.h"
#include "effect/lut/row_kernel.h"
#include "effect/reference/build_lut_reference.h"
#include "frames.h"
#include "interleaved.h"
#include "plain_code.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <fmt/format.h>

namespace ov1::bench
{

namespace
{

constexpr std::size_t preview_width = 1600, preview_height = 900;

/// Blue, green, red, unused, from the lowest byte on: the format of windows.
using screen = std::vector<std::uint32_t>;

/// The same loop for both contenders, one row at a time.
void to_screen(const std::vector<argb_float>& row, std::uint32_t* to)
{
    const auto code = [](float v) { return static_cast<int>(std::min(std::max(v, 0.0f), 1.0f) * 255.0f + 0.5f); };
    for (std::size_t i = 0; i < row.size(); ++i)
        to[i] = static_cast<std::uint32_t>(code(row[i].r) << 16 | code(row[i].g) << 8 | code(row[i].b)) | 0xff000000u;
}

/// Stricter than ==, which takes -0 for 0.
bool same_bits(const lut_argb<lut_edge>& a, const lut_argb<lut_edge>& b)
{
    return std::memcmp(a.get_entries().data(), b.get_entries().data(), a.get_entries().size() * sizeof(argb_float)) ==
           0;
}

class table_bench
{
public:
    void check_answers(report& to)
    {
        for (const instruction_set& set : present_instruction_sets())
        {
            const forced_instruction_set forced(set);
            for (const grade_settings& settings : {all, grade_settings{}})
            {
                build_lut_reference(settings, looks, skin, plain_table);
                build_lut(settings, looks, skin, built);
                to.answer(fmt::format("build, {}", set.name), same_bits(plain_table, built) ? 0 : 1, 0);
            }
        }
        // The buffers are exchanged, so the first result is compared with the second.
        screen by_plain_code = pixels;
        drag_step();
        by_plain_code.swap(pixels);
        plain_drag_step();
        to.answer("screen pixels of a drag", by_plain_code == pixels ? 0 : 1, 0);
    }

    std::vector<contender> builds()
    {
        return {{"build, everything active", [this] { build_lut(all, looks, skin, built); }},
                {"plain build, everything active", [this] { build_lut_reference(all, looks, skin, plain_table); }},
                {"build, defaults", [this] { build_lut({}, looks, skin, built); }},
                {"plain build, defaults", [this] { build_lut_reference({}, looks, skin, plain_table); }},
                {"publishing", [this] { published = std::make_shared<render_table>(built); }}};
    }

    std::vector<contender> drags()
    {
        return {{"drag: build, publish, preview, screen", [this] { drag_step(); }},
                {"drag in plain code", [this] { plain_drag_step(); }}};
    }

private:
    void drag_step()
    {
        build_lut(all, looks, skin, built);
        published = std::make_shared<render_table>(built);
        for (std::size_t at = 0; at < preview.count(); at += preview.width)
        {
            row_kernel::render_argb(*published, &preview.pixels[at], row.data(), preview.width);
            to_screen(row, &pixels[at]);
        }
    }

    void plain_drag_step()
    {
        build_lut_reference(all, looks, skin, plain_table);
        const auto renderer = make_plain_renderer(plain_table);
        for (std::size_t y = 0, at = 0; y < preview.height; ++y, at += preview.width)
        {
            for (std::size_t x = 0; x < preview.width; ++x)
                renderer->render_pixel(x, y, preview.pixels[at + x], row[x]);
            to_screen(row, &pixels[at]);
        }
    }

    const grade_settings all = everything_active();
    const veridial_luts looks;
    const skin_tables skin;
    lut_argb<lut_edge> built;
    lut<lut_edge> plain_table;
    std::shared_ptr<const render_table> published;
    const frame preview = make_frame(content::natural, preview_width, preview_height);
    std::vector<argb_float> row = std::vector<argb_float>(preview.width);
    screen pixels = screen(preview.count());
};

/// Prints the median times and returns them in seconds.
std::vector<double> time(report& to, const std::vector<contender>& contenders, int rounds)
{
    const auto seconds = median_seconds(contenders, rounds);
    for (std::size_t i = 0; i < contenders.size(); ++i)
        to.say(fmt::format("  {:<40} {:>8.0f} microseconds", contenders[i].name, seconds[i] * 1e6));
    return seconds;
}

} // namespace

grade_settings everything_active()
{
    grade_settings settings;
    for (std::size_t i = 1; i < parameter_count; ++i)
    {
        // All different, none at a bound.
        const float share = 0.35f + 0.4f * static_cast<float>(i * 7 % parameter_count) / parameter_count;
        settings.settings[i].value = parameter_table[i].min + share * (parameter_table[i].max - parameter_table[i].min);
    }
    return settings;
}

void run_table_bench(report& to, int rounds)
{
    to.say(fmt::format("\nTable and drag, preview {} x {}", preview_width, preview_height));
    table_bench bench;
    bench.check_answers(to);
    constexpr int builds_per_round = 40; // a build is short
    const auto builds = time(to, bench.builds(), rounds * builds_per_round);
    const auto drags = time(to, bench.drags(), 3 * rounds);
    to.ratio("table build, everything active, against the plain build", builds[1] / builds[0], 2.5);
    to.ratio("one step of a drag, against plain code", drags[1] / drags[0], 4);
}

} // namespace ov1::bench
