#include "pixel_bench.h"

#include "effect/lut/instruction_sets.h"
#include "effect/lut/row_kernel.h"
#include "interleaved.h"
#include "lut3d_peer.h"
#include "opencolorio_peer.h"
#include "plain_code.h"
#include "platform/rows.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fmt/format.h>

namespace ov1::bench
{

namespace
{

/// Positions in the list of contenders.
enum place : std::size_t
{
    copied,
    copied_by_two,
    floats,
    floats_by_two,
    halfs,
    halfs_by_two,
    plain,
    ocio_trilinear,
    ocio_tetrahedral,
    ocio_half_trilinear,
    lut3d_trilinear,
    lut3d_tetrahedral,
    lut3d_rgb24,
};

// The order of FFmpeg's planar RGB formats is G, B, R.
constexpr int red_plane = 2, green_plane = 0, blue_plane = 1;

/// In both frames a pixel is four samples.
class pixel_bench
{
public:
    pixel_bench(const lut_argb<lut_edge>& table, frame picture)
        : table(table)
        , rendered(table)
        , plain_code(make_plain_renderer(table))
        , ocio{{table, interpolation::trilinear, sample_kind::f32},
               {table, interpolation::tetrahedral, sample_kind::f32},
               {table, interpolation::trilinear, sample_kind::f16}}
        , lut3d{{table, interpolation::trilinear, "gbrpf32le", picture.width, picture.height},
                {table, interpolation::tetrahedral, "gbrpf32le", picture.width, picture.height},
                {table, interpolation::tetrahedral, "rgb24", picture.width, picture.height}}
        , in(std::move(picture))
        , out(in.count())
        , wanted(in.count())
        , in_half(4 * in.count())
        , out_half(4 * in.count())
        , in_rgba(4 * in.count())
    {
        for (std::size_t i = 0; i < in.count(); ++i)
        {
            const argb_float& p = in.pixels[i];
            wanted[i] = table.lookup(p);
            const float rgba[] = {p.r, p.g, p.b, p.a};
            for (std::size_t c = 0; c < 4; ++c)
            {
                in_rgba[4 * i + c] = rgba[c];
                in_half[4 * i + c] = float_to_half(rgba[c]);
            }
        }
        fill_lut3d_frames();
    }

    std::vector<contender> contenders()
    {
        return {{"memcpy", [this] { copy(1); }},
                {"memcpy, 2 threads", [this] { copy(2); }, false},
                {"Veridial, float", [this] { render_floats(1); }},
                {"Veridial, float, 2 threads", [this] { render_floats(2); }, false},
                {"Veridial, half", [this] { render_halfs(1); }},
                {"Veridial, half, 2 threads", [this] { render_halfs(2); }, false},
                {"plain code, float", [this] { render_plainly(); }},
                {"OpenColorIO, float, trilinear",
                 [this] { ocio[0].render(in_rgba.data(), out.data(), in.width, in.height); }},
                {"OpenColorIO, float, tetrahedral",
                 [this] { ocio[1].render(in_rgba.data(), out.data(), in.width, in.height); }},
                {"OpenColorIO, half, trilinear",
                 [this] { ocio[2].render(in_half.data(), out_half.data(), in.width, in.height); }},
                {"FFmpeg lut3d, gbrpf32, trilinear", [this] { lut3d[0].render(); }},
                {"FFmpeg lut3d, gbrpf32, tetrahedral", [this] { lut3d[1].render(); }},
                {"FFmpeg lut3d, rgb24, tetrahedral", [this] { lut3d[2].render(); }}};
    }

    void check_answers(report& to)
    {
        check_own_answers(to);
        // Up to seven roundings of values up to 1, in another order.
        constexpr double other_order = 1e-6;
        const auto trilinear = [this](std::size_t i) { return wanted[i]; };
        const auto by_tetrahedra = [this](std::size_t i) { return tetrahedral(table, in.pixels[i]); };
        ocio[0].render(in_rgba.data(), out.data(), in.width, in.height);
        to.answer("OpenColorIO, float, trilinear", packed_difference(trilinear), other_order);
        ocio[1].render(in_rgba.data(), out.data(), in.width, in.height);
        to.answer("OpenColorIO, float, tetrahedral", packed_difference(by_tetrahedra), other_order);
        ocio[2].render(in_half.data(), out_half.data(), in.width, in.height);
        to.answer("OpenColorIO, half, trilinear", half_difference(), 0.5 / 1024 + other_order); // a half's step below 1
        lut3d[0].render();
        to.answer("FFmpeg lut3d, gbrpf32, trilinear", planar_difference(lut3d[0], trilinear), other_order);
        lut3d[1].render();
        to.answer("FFmpeg lut3d, gbrpf32, tetrahedral", planar_difference(lut3d[1], by_tetrahedra), other_order);
        lut3d[2].render();
        to.answer("FFmpeg lut3d, rgb24, tetrahedral", byte_difference(lut3d[2]), 1.01 / 255); // it truncates
    }

private:
    /// The picture in the layouts of the filter: planes of floats, and packed bytes.
    void fill_lut3d_frames()
    {
        for (std::size_t y = 0; y < in.height; ++y)
        {
            const argb_float* row = &in.pixels[y * in.width];
            const std::pair<int, float argb_float::*> planes[] = {
                {red_plane, &argb_float::r}, {green_plane, &argb_float::g}, {blue_plane, &argb_float::b}};
            for (const auto& [plane, channel] : planes)
                for (std::size_t which = 0; which < 2; ++which)
                {
                    auto* to = reinterpret_cast<float*>(lut3d[which].in_row(plane, y));
                    for (std::size_t x = 0; x < in.width; ++x)
                        to[x] = row[x].*channel;
                }
            unsigned char* bytes = lut3d[2].in_row(0, y);
            for (std::size_t x = 0; x < in.width; ++x)
                for (const float value : {row[x].r, row[x].g, row[x].b})
                    // Rounded to bytes; byte_difference starts from the same bytes.
                    *bytes++ = static_cast<unsigned char>(value * 255.0f + 0.5f);
        }
    }

    void copy(unsigned threads)
    {
        // One thread copies in one call, where memcpy is fastest.
        for_each_row_piece(in.height, threads == 1 ? in.height : row_pieces::usual_rows, threads,
                           [&](std::size_t first, std::size_t end)
                           {
                               std::memcpy(&out[first * in.width], &in.pixels[first * in.width],
                                           (end - first) * in.width * sizeof(argb_float));
                           });
    }

    void render_floats(unsigned threads)
    {
        for_each_picture_piece(in.width, in.height, threads,
                               [&](std::size_t first, std::size_t end)
                               {
                                   for (std::size_t at = first * in.width; at < end * in.width; at += in.width)
                                       row_kernel::render_argb(rendered, &in.pixels[at], &out[at], in.width);
                               });
    }

    void render_halfs(unsigned threads)
    {
        for_each_picture_piece(in.width, in.height, threads,
                               [&](std::size_t first, std::size_t end)
                               {
                                   for (std::size_t at = first * in.width; at < end * in.width; at += in.width)
                                       row_kernel::render_half(rendered, &in_half[4 * at], &out_half[4 * at], in.width);
                               });
    }

    void render_plainly()
    {
        for (std::size_t y = 0, at = 0; y < in.height; ++y)
            for (std::size_t x = 0; x < in.width; ++x, ++at)
                plain_code->render_pixel(x, y, in.pixels[at], out[at]);
    }

    /// To the bit, on every instruction set.
    void check_own_answers(report& to)
    {
        render_plainly();
        to.answer("plain code (pixels that differ from the lookup)", differing_pixels(), 0);
        std::vector<half_bits> wanted_half;
        for (std::size_t i = 0; i < in.count(); ++i)
        {
            const half_bits* p = &in_half[4 * i];
            const argb_float c = table.lookup({1, half_to_float(p[0]), half_to_float(p[1]), half_to_float(p[2])});
            for (const float value : {c.r, c.g, c.b, c.a})
                wanted_half.push_back(float_to_half(value));
        }
        for (const instruction_set& set : present_instruction_sets())
        {
            const forced_instruction_set forced(set);
            for (const unsigned threads : {1u, 2u})
            {
                // Cleared, so that pixels that are not written count as wrong.
                std::fill(out.begin(), out.end(), argb_float{});
                render_floats(threads);
                to.answer(fmt::format("Veridial, float, {}, {} (pixels)", set.name, threads), differing_pixels(), 0);
                std::fill(out_half.begin(), out_half.end(), half_bits{});
                render_halfs(threads);
                std::size_t different = 0;
                for (std::size_t i = 0; i < out_half.size(); ++i)
                    different += out_half[i] != wanted_half[i];
                to.answer(fmt::format("Veridial, half, {}, {} (samples)", set.name, threads),
                          static_cast<double>(different), 0);
            }
        }
    }

    /// Pixels of out that have other bits than the lookup.
    double differing_pixels() const
    {
        std::size_t different = 0;
        for (std::size_t i = 0; i < in.count(); ++i)
            different += std::memcmp(&out[i], &wanted[i], sizeof(argb_float)) != 0;
        return static_cast<double>(different);
    }

    /// The largest difference of the three channels.
    static double difference(const argb_float& a, float r, float g, float b)
    {
        return std::max({std::abs(a.r - r), std::abs(a.g - g), std::abs(a.b - b)});
    }

    /// Of the last float result of OpenColorIO; right(i) is the colour of pixel i.
    template <class function>
    double packed_difference(const function& right) const
    {
        double largest = 0.0;
        for (std::size_t i = 0; i < in.count(); ++i) // R, G, B, A lie where an argb_float has a, r, g, b
            largest = std::max(largest, difference(right(i), out[i].a, out[i].r, out[i].g));
        return largest;
    }

    /// The same for halfs. The lookup starts from the halfs, so only the rounding of the result differs.
    double half_difference() const
    {
        double largest = 0.0;
        for (std::size_t i = 0; i < 4 * in.count(); i += 4)
        {
            const argb_float right = table.lookup(
                {1, half_to_float(in_half[i]), half_to_float(in_half[i + 1]), half_to_float(in_half[i + 2])});
            largest = std::max(largest, difference(right, half_to_float(out_half[i]), half_to_float(out_half[i + 1]),
                                                   half_to_float(out_half[i + 2])));
        }
        return largest;
    }

    /// The same for planes of floats of the filter.
    template <class function>
    double planar_difference(const lut3d_peer& peer, const function& right) const
    {
        double largest = 0.0;
        for (std::size_t y = 0; y < in.height; ++y)
        {
            const auto row = [&](int plane) { return reinterpret_cast<const float*>(peer.out_row(plane, y)); };
            const float *r = row(red_plane), *g = row(green_plane), *b = row(blue_plane);
            for (std::size_t x = 0; x < in.width; ++x)
                largest = std::max(largest, difference(right(y * in.width + x), r[x], g[x], b[x]));
        }
        return largest;
    }

    /// The same for bytes, tetrahedrally.
    double byte_difference(lut3d_peer& peer) const
    {
        constexpr float code = 1 / 255.0f;
        double largest = 0.0;
        for (std::size_t y = 0; y < in.height; ++y)
        {
            const unsigned char *from = peer.in_row(0, y), *to = peer.out_row(0, y);
            for (std::size_t x = 0; x < in.width; ++x, from += 3, to += 3)
                largest = std::max(largest,
                                   difference(tetrahedral(table, {1, code * from[0], code * from[1], code * from[2]}),
                                              code * to[0], code * to[1], code * to[2]));
        }
        return largest;
    }

    const lut_argb<lut_edge>& table;
    render_table rendered;
    std::unique_ptr<pixel_renderer> plain_code;
    opencolorio_peer ocio[3];
    lut3d_peer lut3d[3];
    frame in;
    std::vector<argb_float> out;
    std::vector<argb_float> wanted;
    std::vector<half_bits> in_half;
    std::vector<half_bits> out_half;
    std::vector<float> in_rgba;
};

/// Speed of ours divided by that of the peer, each with its floor.
void report_ratios(report& to, content what, const std::vector<double>& seconds)
{
    const bool natural = what == content::natural;
    const auto against = [&](place ours, place theirs) { return seconds[theirs] / seconds[ours]; };
    const auto add = [&](const char* name, place ours, place theirs, double floor)
    { to.ratio(fmt::format("{}{}", name, natural ? "" : ", random"), against(ours, theirs), floor); };
    add("float against OpenColorIO, trilinear", floats, ocio_trilinear, natural ? 11 : 8);
    add("float against OpenColorIO, tetrahedral", floats, ocio_tetrahedral, natural ? 12 : 8);
    if (!natural)
        return;
    add("half against OpenColorIO, trilinear", halfs, ocio_half_trilinear, 13);
    add("float against FFmpeg lut3d gbrpf32, trilinear", floats, lut3d_trilinear, 8);
    add("float against FFmpeg lut3d gbrpf32, tetrahedral", floats, lut3d_tetrahedral, 2.2);
    add("float against plain code", floats, plain, 7);
    add("float against memcpy", floats, copied, 0.5);
    add("float against memcpy, 2 threads", floats_by_two, copied_by_two, 0.8);
}

} // namespace

void run_pixel_bench(report& to, const lut_argb<lut_edge>& table, content what, std::size_t width, std::size_t height,
                     int rounds)
{
    to.say(fmt::format("\n{} content, {} x {}, {} rounds", what == content::natural ? "Natural" : "Random", width,
                       height, rounds));
    pixel_bench bench(table, make_frame(what, width, height));
    bench.check_answers(to);

    const auto contenders = bench.contenders();
    const auto seconds = median_seconds(contenders, rounds);
    for (std::size_t i = 0; i < contenders.size(); ++i)
        to.say(fmt::format("  {:<40} {:>8.1f} Mpixel/s", contenders[i].name,
                           static_cast<double>(width * height) / seconds[i] / 1e6));
    report_ratios(to, what, seconds);
}

} // namespace ov1::bench
