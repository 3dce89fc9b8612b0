#include "editor/preview/display_picture.h"

#include "platform/rows.h"
#include "shared/argb_float.h"
#include "shared/clamp.h"
#include "shared/image.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ov1
{

namespace
{

constexpr std::uint32_t opaque = 0xff000000u;
/// From this zoom on, a picture's pixels are drawn as squares.
constexpr double least_zoom_of_squares = 2;

/// What contributes to one screen row or column: count neighbouring rows or columns of the picture from first on. Their
/// weights add up to weight_one.
struct tap_list
{
    std::uint32_t first = 0;
    std::uint32_t count = 0;
    std::uint32_t offset = 0; ///< into resample_axis::weights
};

// 14 bits of weight times 8 of code, twice, would overflow 32 bits: between the passes only kept_bits remain.
constexpr int weight_bits = 14;
constexpr std::int32_t weight_one = 1 << weight_bits;
constexpr int kept_bits = 6;

/// All screen columns, or all screen rows, of a window.
struct resample_axis
{
    std::vector<tap_list> taps;
    std::vector<std::int32_t> weights;
};

/// The part of picture pixel i, which extends from i to i + 1, that begin..end covers.
double covered(std::int64_t i, double begin, double end)
{
    return std::max(0.0, std::min(end, i + 1.0) - std::max(begin, static_cast<double>(i)));
}

/// Appends integer weights that add up to weight_one exactly, so that a uniform area keeps its value: the largest
/// weight takes the rounding error.
void append_weights(resample_axis& axis, const std::vector<double>& exact)
{
    double sum = 0;
    for (const double w : exact)
        sum += w;
    std::int32_t remainder = weight_one;
    std::size_t largest = axis.weights.size();
    const std::size_t begin = axis.weights.size();
    for (const double w : exact)
    {
        axis.weights.push_back(static_cast<std::int32_t>(std::lround(w / sum * weight_one)));
        remainder -= axis.weights.back();
    }
    for (std::size_t i = begin; i < axis.weights.size(); ++i)
        if (axis.weights[i] > axis.weights[largest])
            largest = i;
    axis.weights[largest] += remainder;
}

/// Appends the taps of screen pixel s. Below zoom 1 they are the picture pixels under it, weighted by area; up to 2 the
/// interval is one picture pixel wide, which is linear interpolation; above that it is the single pixel under s.
/// exact is scratch memory.
void append_taps(resample_axis& axis, double s, double zoom, std::uint32_t size, std::vector<double>& exact)
{
    double begin = s / zoom, end = (s + 1) / zoom;
    if (zoom >= least_zoom_of_squares)
    {
        begin = std::floor((s + 0.5) / zoom);
        end = begin + 1;
    }
    else if (zoom > 1)
    {
        const double middle = (begin + end) / 2;
        begin = middle - 0.5;
        end = middle + 0.5;
    }
    const std::int64_t last = static_cast<std::int64_t>(size) - 1;
    // The tolerance drops neighbours that rounding errors alone would bring in.
    const auto lowest = static_cast<std::int64_t>(std::floor(begin + 1e-9));
    const auto highest = std::max(lowest, static_cast<std::int64_t>(std::ceil(end - 1e-9)) - 1);
    const std::int64_t first = std::clamp<std::int64_t>(lowest, 0, last);
    const std::int64_t final_tap = std::clamp<std::int64_t>(highest, 0, last);
    // Outside the picture the edge pixel receives the weight.
    exact.assign(static_cast<std::size_t>(final_tap - first + 1), 0.0);
    for (std::int64_t i = lowest; i <= highest; ++i)
        exact[static_cast<std::size_t>(std::clamp(i, first, final_tap) - first)] += covered(i, begin, end);
    axis.taps.push_back({static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(exact.size()),
                         static_cast<std::uint32_t>(axis.weights.size())});
    append_weights(axis, exact);
}

resample_axis make_axis(double origin, std::uint32_t count, double zoom, std::uint32_t size)
{
    resample_axis axis;
    axis.taps.reserve(count);
    std::vector<double> exact;
    for (std::uint32_t i = 0; i < count; ++i)
        append_taps(axis, origin + i, zoom, size, exact);
    return axis;
}

/// A picture row's bytes, of the columns that the window shows, with kept_bits fractional bits.
using sum_row = std::vector<std::uint16_t>;

/// First pass: the weighted mean of the picture rows that contribute to one screen row. sums is scratch memory.
void sum_rows(const display_picture& picture, const resample_axis& rows, const tap_list& tap,
              std::uint32_t first_column, std::uint32_t columns, std::vector<std::uint32_t>& sums, sum_row& out)
{
    const std::size_t bytes = std::size_t{columns} * 4;
    // Half of what the shift below removes, so that the shift rounds.
    std::fill_n(sums.begin(), bytes, 1u << (weight_bits - kept_bits - 1));
    for (std::uint32_t t = 0; t < tap.count; ++t)
    {
        const auto weight = static_cast<std::uint32_t>(rows.weights[tap.offset + t]);
        const auto* from = reinterpret_cast<const std::uint8_t*>(picture.row(tap.first + t) + first_column);
        for (std::size_t i = 0; i < bytes; ++i)
            sums[i] += from[i] * weight;
    }
    for (std::size_t i = 0; i < bytes; ++i)
        out[i] = static_cast<std::uint16_t>(sums[i] >> (weight_bits - kept_bits));
}

/// Second pass: the weighted mean of the columns, for each pixel of the screen row.
void sum_columns(const sum_row& row, const resample_axis& columns, std::uint32_t first_column, std::uint32_t* target)
{
    // 8 bits of code with kept_bits, times weight_bits: a sum has 28 bits.
    constexpr int shift = weight_bits + kept_bits;
    for (const tap_list& tap : columns.taps)
    {
        std::array<std::uint32_t, 4> sum;
        sum.fill(1u << (shift - 1));
        const std::uint16_t* from = row.data() + std::size_t{tap.first - first_column} * 4;
        for (std::uint32_t t = 0; t < tap.count; ++t, from += 4)
        {
            const auto weight = static_cast<std::uint32_t>(columns.weights[tap.offset + t]);
            for (int channel = 0; channel < 4; ++channel)
                sum[static_cast<std::size_t>(channel)] += from[channel] * weight;
        }
        *target++ = opaque | sum[2] >> shift << 16 | sum[1] >> shift << 8 | sum[0] >> shift;
    }
}

/// One screen row where every tap is a single pixel: at zoom 1, and where pixels are squares.
void copy_nearest(const display_picture& picture, const resample_axis& rows, const resample_axis& columns,
                  std::size_t y, std::uint32_t* target)
{
    const std::uint32_t* from = picture.row(rows.taps[y].first);
    for (const tap_list& tap : columns.taps)
        *target++ = from[tap.first];
}

} // namespace

void convert_row_to_display(const argb_float* from, std::uint32_t* to, std::size_t count)
{
    // By way of a signed integer: processors without AVX-512 have no conversion of several floats to unsigned ones.
    const auto code = [](float v)
    { return static_cast<std::uint32_t>(static_cast<std::int32_t>(clamped(v) * 255.f + 0.5f)); };
    for (std::size_t x = 0; x < count; ++x)
        to[x] = opaque | code(from[x].r) << 16 | code(from[x].g) << 8 | code(from[x].b);
}

void convert_to_display(const image& frame, display_picture& target)
{
    const std::uint32_t width = frame.get_width(), height = frame.get_height();
    target.width = width;
    target.height = height;
    target.pixels.resize(std::size_t{width} * height);
    const bool upside_down = frame.get_origin() == image::origin::bottom_left;
    const auto convert_rows = [&](std::size_t first, std::size_t end)
    {
        for (std::size_t y = first; y < end; ++y)
        {
            const std::size_t from = upside_down ? height - 1 - y : y;
            convert_row_to_display(reinterpret_cast<const argb_float*>(frame.row(static_cast<std::uint32_t>(from))),
                                   target.pixels.data() + y * width, width);
        }
    };
    for_each_picture_piece(width, height, 0, convert_rows);
}

void draw_zoomed(const display_picture& picture, const display_window& shown, std::uint8_t* target,
                 std::size_t row_bytes)
{
    if (picture.is_empty() || shown.width == 0 || shown.height == 0)
        return;
    const resample_axis columns = make_axis(shown.left, shown.width, shown.zoom, picture.width);
    const resample_axis rows = make_axis(shown.top, shown.height, shown.zoom, picture.height);
    // The first pass computes only the columns that the window shows.
    const std::uint32_t first_column = columns.taps.front().first;
    const std::uint32_t used = columns.taps.back().first + columns.taps.back().count - first_column;
    const bool is_copy = shown.zoom >= least_zoom_of_squares || shown.zoom == 1;
    const auto draw_rows = [&](std::size_t first, std::size_t end)
    {
        // Scratch memory for each piece: pieces run on several cores at once.
        std::vector<std::uint32_t> sums(std::size_t{used} * 4);
        sum_row row(std::size_t{used} * 4);
        for (std::size_t y = first; y < end; ++y)
        {
            auto* to = reinterpret_cast<std::uint32_t*>(target + y * row_bytes);
            if (is_copy)
            {
                copy_nearest(picture, rows, columns, y, to);
                continue;
            }
            // Rows first: the loop over the bytes of a row is contiguous, and compilers turn it into vector code.
            sum_rows(picture, rows, rows.taps[y], first_column, used, sums, row);
            sum_columns(row, columns, first_column, to);
        }
    };
    for_each_picture_piece(shown.width, shown.height, 0, draw_rows);
}

} // namespace ov1
