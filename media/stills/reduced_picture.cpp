#include "media/stills/reduced_picture.h"

#include <algorithm>
#include <cmath>

namespace ov1::media
{

namespace
{

/// A box's sums, in double: a large box holds many pixels.
struct box_sum
{
    double a = 0, r = 0, g = 0, b = 0, weight = 0;
    argb_float last; ///< for a box without weight

    void add(const argb_float& c, bool by_alpha)
    {
        const double w = by_alpha ? c.a : 1.0;
        a += c.a;
        r += w * c.r;
        g += w * c.g;
        b += w * c.b;
        weight += w;
        last = c;
    }

    argb_float mean(std::size_t pixels) const
    {
        if (weight <= 0)
            return last;
        return {static_cast<float>(a / static_cast<double>(pixels)), static_cast<float>(r / weight),
                static_cast<float>(g / weight), static_cast<float>(b / weight)};
    }
};

/// At least 1, however narrow the picture is.
std::size_t scaled(std::size_t side, double ratio)
{
    return std::max<std::size_t>(1, static_cast<std::size_t>(std::lround(static_cast<double>(side) * ratio)));
}

/// Turns one row of sums into pixels, and clears it.
void close_row(std::vector<box_sum>& sums, const std::vector<std::size_t>& edges, std::size_t rows,
               std::vector<argb_float>& pixels)
{
    for (std::size_t x = 0; x < sums.size(); ++x)
        pixels.push_back(sums[x].mean((edges[x + 1] - edges[x]) * rows));
    std::fill(sums.begin(), sums.end(), box_sum{});
}

/// The first pixel of each box along a side, and the end of the last box.
std::vector<std::size_t> box_edges(std::size_t side, std::size_t boxes)
{
    std::vector<std::size_t> edges;
    for (std::size_t i = 0; i <= boxes; ++i)
        edges.push_back(i * side / boxes);
    return edges;
}

} // namespace

reduced_picture reduce(const still_reader& source, std::size_t max_width, std::size_t max_height)
{
    constexpr std::size_t piece_rows = 32;
    const still_info& info = source.info();
    const double ratio = std::min({1.0, static_cast<double>(max_width) / static_cast<double>(info.width),
                                   static_cast<double>(max_height) / static_cast<double>(info.height)});
    reduced_picture out{
        std::min(scaled(info.width, ratio), max_width), std::min(scaled(info.height, ratio), max_height), {}};
    // Premultiplied colour is weighted by alpha already.
    const bool by_alpha = info.alpha == alpha_kind::straight;
    const std::vector<std::size_t> columns = box_edges(info.width, out.width);
    const std::vector<std::size_t> rows = box_edges(info.height, out.height);
    std::vector<argb_float> piece(piece_rows * info.width);
    std::vector<box_sum> sums(out.width);
    std::size_t box = 0;
    for (std::size_t y = 0; y < info.height; ++y)
    {
        // The source is read in pieces, because a whole picture of floats may take gigabytes.
        if (y % piece_rows == 0)
            source.read_rows(y, std::min(piece_rows, info.height - y), piece.data());
        const argb_float* row = piece.data() + y % piece_rows * info.width;
        for (std::size_t x = 0; x < out.width; ++x)
            for (std::size_t i = columns[x]; i < columns[x + 1]; ++i)
                sums[x].add(row[i], by_alpha);
        if (y + 1 == rows[box + 1])
        {
            close_row(sums, columns, rows[box + 1] - rows[box], out.pixels);
            ++box;
        }
    }
    return out;
}

} // namespace ov1::media
