// Runs the vector loops on the same values and prints hashes of the results, so that two processors can be compared.
// Ends with 1 if the row loops differ from the lookup.
#include "effect/build/build_kernel.h"
#include "effect/lut/instruction_sets.h"
#include "effect/lut/row_kernel.h"
#include "media/samples/sample_kernel.h"
#include "media/samples/ycbcr_kernel.h"

#include <array>
#include <bit>
#include <cstdio>
#include <cstring>
#include <random>
#include <vector>

namespace ov1
{
namespace
{

constexpr std::size_t pixel_count = 100'003;

/// Independent of the standard library's distributions.
float next(std::mt19937& engine) { return static_cast<float>(engine() >> 8) * 0x1p-24f; }

lut_argb<lut_edge> scrambled(std::mt19937& engine)
{
    lut_argb<lut_edge> table(lut_argb<lut_edge>::init_mode::none);
    for (argb_float& entry : table.get_entries())
        entry = {next(engine), next(engine) * 1.5f - 0.25f, next(engine), next(engine) * 1e-4f};
    return table;
}

/// Every 16th value is any bits: NaN, infinities and subnormals among them.
std::vector<argb_float> pixels(std::mt19937& engine)
{
    std::vector<argb_float> row(pixel_count);
    for (argb_float& pixel : row)
        for (const auto channel : {&argb_float::a, &argb_float::r, &argb_float::g, &argb_float::b})
            pixel.*channel = engine() % 16 == 0 ? std::bit_cast<float>(static_cast<std::uint32_t>(engine()))
                                                : next(engine) * 1.25f - 0.125f;
    return row;
}

template <class sample>
std::uint64_t hash(const std::vector<sample>& row) // 64-bit FNV-1a
{
    std::uint64_t value = 0xcbf29ce484222325;
    const auto* bytes = reinterpret_cast<const unsigned char*>(row.data());
    for (std::size_t i = 0; i < row.size() * sizeof(sample); ++i)
        value = (value ^ bytes[i]) * 0x100000001b3;
    return value;
}

void print(const char* name, std::uint64_t value)
{
    std::printf("%s %016llx\n", name, static_cast<unsigned long long>(value));
}

/// A build in which every step acts, with random tables and masks.
std::vector<argb_float> built(std::mt19937& engine, const lut_argb<lut_edge>& table)
{
    build_plan plan;
    for (const float radius : {1.0f, 75.0f, 140.0f, 256.0f})
    {
        const auto colour = [&] { return argb_float{0, next(engine) * u16_max, next(engine) * u16_max, 30000.0f}; };
        plan.wheels.push_back({colour(), colour(), radius});
        derive_reach(plan.wheels.back());
    }
    plan.sky_and_greenery = {{&table, 0.3f}, {&table, -0.1f}};
    plan.chroma_percent = 12.5;
    plan.luminance_percent = -3.1;
    plan.saturation = {{&table, 0.4f}, {&table, 1.0f}};
    plan.film_contrast = {{&table, 0.2f}};
    lut_mask<lut_edge> mask;
    for (float& weight : mask.weights)
        weight = next(engine);
    std::vector<argb_float> entries(lut_argb<lut_edge>::entry_count);
    build_kernel::run_build(plan, {&mask, &mask, &table, 0.35, -17, {{&table, 0.6f}}}, entries.data());
    return entries;
}

/// Rows of video from codes to colours and back, two pixels per chroma sample.
std::vector<std::uint16_t> carried(std::mt19937& engine)
{
    using media::ycbcr_kernel::pixel_pairs;
    constexpr std::size_t pairs = 1003, margin = media::sample_kernel::margin;
    std::vector<std::uint16_t> codes(2 * pairs);
    for (auto& code : codes)
        code = static_cast<std::uint16_t>(engine() % 1024);
    std::vector<float> rows[8];
    for (auto& row : rows)
        row.resize(pairs + 2 * margin);
    const auto at = [&](std::size_t i) { return rows[i].data() + margin; };
    const auto luma = media::luma_range(10, false), chroma = media::chroma_range(10, false);
    const auto weights = media::weights_of(media::ycbcr_matrix::bt709);
    const media::chroma_axis axis{1, 0};
    media::sample_kernel::widen(codes.data(), pairs, chroma, at(6));
    media::sample_kernel::widen(codes.data() + pairs, pairs, chroma, at(7));
    for (const std::size_t row : {6, 7})
        at(row)[pairs] = at(row)[pairs - 1];
    const pixel_pairs pixels{{at(0), at(1), at(2)}, {at(3), at(4), at(5)}};
    const media::ycbcr_kernel::shared_source<std::uint16_t> source{codes.data(), at(6), at(7)};
    media::ycbcr_kernel::shared_to_rgb(source, 2 * pairs, luma, axis, weights, pixels);
    media::ycbcr_kernel::to_ycbcr(pixels, 2 * pairs, weights, luma, codes.data());
    media::ycbcr_kernel::gather(at(2), at(5), pairs - 1, axis, at(6));
    codes.resize(3 * pairs);
    media::sample_kernel::narrow(at(6), pairs - 1, chroma, codes.data() + 2 * pairs);
    return codes;
}

int run()
{
    std::mt19937 engine(64);
    const lut_argb<lut_edge> table = scrambled(engine);
    print("build", hash(built(engine, table)));
    const auto in = pixels(engine);

    std::vector<argb_float> looked_up;
    std::vector<half_bits> in_half, looked_up_half;
    for (const argb_float& p : in)
    {
        looked_up.push_back(table.lookup(p));
        std::array<half_bits, 4> half;
        for (std::size_t c = 0; c < 4; ++c)
            half[c] = static_cast<half_bits>(engine());
        in_half.insert(in_half.end(), half.begin(), half.end());
        const argb_float to = table.lookup({0, half_to_float(half[0]), half_to_float(half[1]), half_to_float(half[2])});
        for (const float value : {to.r, to.g, to.b, to.a})
            looked_up_half.push_back(float_to_half(value));
    }
    print("floats", hash(looked_up));
    print("halfs", hash(looked_up_half));
    print("video", hash(carried(engine)));

    int differing = 0;
    for (const auto form : {render_table::layout::with_deltas, render_table::layout::lines_only})
    {
        const render_table rendered(table, form);
        std::vector<argb_float> out(in.size());
        row_kernel::render_argb(rendered, in.data(), out.data(), in.size());
        differing += hash(out) != hash(looked_up);
        std::vector<half_bits> out_half(in_half.size());
        row_kernel::render_half(rendered, in_half.data(), out_half.data(), in.size());
        differing += hash(out_half) != hash(looked_up_half);
        std::vector<float> r, g, b;
        for (const argb_float& p : in)
        {
            r.push_back(p.r);
            g.push_back(p.g);
            b.push_back(p.b);
        }
        row_kernel::render_planes(rendered, {r.data(), g.data(), b.data()}, {r.data(), g.data(), b.data()}, in.size());
        for (std::size_t i = 0; i < out.size(); ++i)
            out[i] = {looked_up[i].a, r[i], g[i], b[i]};
        differing += hash(out) != hash(looked_up);
    }
    std::fprintf(stderr, "%s: %d of 6 rows differ from the lookup\n", present_instruction_sets().front().name.c_str(),
                 differing);
    return differing == 0 ? 0 : 1;
}

} // namespace
} // namespace ov1

int main() { return ov1::run(); }
