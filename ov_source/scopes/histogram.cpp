#include "scopes/histogram.h"

#include "scopes/tent_axis.h"
#include "scopes/trace_curve.h"

#include <cmath>
#include <numeric>

namespace ov1
{

namespace
{

// Lengths are in line widths, so that the drawing keeps its proportions on screens of any density.
constexpr int margin = 4;    // around the plot, in line widths
constexpr int mark_size = 5; // side of the squares for clipped channels, in line widths
constexpr int scale_parts = 4;
constexpr std::array<const char*, scale_parts + 1> scale_texts{"0", "25", "50", "75", "100"};
/// The light that a channel adds to the background. All three together give a pale grey.
constexpr std::array<scope_colour, 3> channel_light{{{122, 26, 22}, {22, 104, 30}, {26, 32, 132}}};
constexpr std::array<scope_colour, 3> channel_colours{{{255, 92, 84}, {92, 226, 104}, {104, 146, 255}}};

rect plot_of(const rect& area, int line_width)
{
    const int m = margin * line_width;
    return {area.x + m, area.y + m, area.width - 2 * m, area.height - 2 * m};
}

/// The column of the picture, not rounded, that shows a position (0..1) of the scale.
double column_of(double share, const rect& plot) { return plot.x + share * (plot.width - 1); }

void draw_scale(const rect& plot, int line_width, scope_picture& picture)
{
    for (int i = 0; i <= scale_parts; ++i)
    {
        const bool is_limit = i == 0 || i == scale_parts;
        const int x = static_cast<int>(std::lround(column_of(static_cast<double>(i) / scale_parts, plot)));
        paint_rect(picture, {x - line_width / 2, plot.y, line_width, plot.height},
                   is_limit ? limit_colour : graticule_colour);
    }
}

/// The count that has the height of the plot: the largest between the ends, or the number of pixels if all are at the
/// ends.
std::uint32_t full_count(const histogram_counts& counts)
{
    std::uint32_t inner = 0;
    for (const auto& channel : counts.bins)
        inner = std::max(inner, *std::max_element(channel.begin() + 1, channel.end() - 1));
    return inner > 0 ? inner : std::max(1u, counts.pixels());
}

/// The height of each level's bar above the lower edge, in rows of pixels, not rounded.
using height_row = std::array<float, level_count>;

/// Counts above `full` reach the upper edge and no further.
height_row heights_of(const std::array<std::uint32_t, level_count>& bins, std::uint32_t full, int rows)
{
    height_row heights;
    for (std::size_t level = 0; level < level_count; ++level)
    {
        const float share = std::min(1.f, static_cast<float>(bins[level]) / static_cast<float>(full));
        heights[level] = std::sqrt(share) * static_cast<float>(rows);
    }
    return heights;
}

/// Adds light to a pixel and clips each channel at 255, so that overlapping channels mix as coloured lights do. The
/// cover is 0..1.
std::uint32_t lightened(std::uint32_t pixel, const scope_colour& light, float cover)
{
    const auto share = static_cast<std::uint32_t>(cover * 256);
    const auto sum = [share](std::uint32_t from, std::uint32_t light)
    { return std::min(255u, from + (light * share >> 8)); };
    return 0xff000000u | sum(pixel >> 16 & 255, light.r) << 16 | sum(pixel >> 8 & 255, light.g) << 8 |
           sum(pixel & 255, light.b);
}

void draw_channel(const height_row& heights, const tent_axis& levels, const scope_colour& light, const rect& plot,
                  scope_picture& picture)
{
    for (int x = 0; x < plot.width; ++x)
    {
        const float height = levels.at(static_cast<std::size_t>(x), heights.data());
        // Rows are counted from the top; the bar fills the lower `height` rows.
        const int first = std::max(0, plot.height - static_cast<int>(std::ceil(height)));
        for (int y = first; y < plot.height; ++y)
        {
            // The uppermost row is covered in part: this antialiases the outline.
            std::uint32_t& pixel = picture.row(plot.y + y)[plot.x + x];
            pixel = lightened(pixel, light, std::min(1.f, height - static_cast<float>(plot.height - 1 - y)));
        }
    }
}

/// Three squares, one below the other, next to the upper corners of the plot.
void draw_clip_marks(const histogram_counts& counts, const rect& plot, int line_width, scope_picture& picture)
{
    // The logarithmic curve: a few clipped pixels must already be visible.
    const trace_curve& curve = trace_curve::get();
    const int size = mark_size * line_width, step = size + line_width;
    const float share = 1.f / static_cast<float>(std::max(1u, counts.pixels()));
    for (std::size_t i = 0; i < counts.bins.size(); ++i)
    {
        const int top = plot.y + static_cast<int>(i) * step;
        const auto mark = [&](int left, std::uint32_t count)
        { paint_rect(picture, {left, top, size, size}, channel_colours[i], curve(static_cast<float>(count) * share)); };
        mark(plot.x + line_width, counts.bins[i].front());
        mark(plot.x + plot.width - line_width - size, counts.bins[i].back());
    }
}

} // namespace

// Each channel counts every pixel once, so that one channel gives the number.
std::uint32_t histogram_counts::pixels() const { return std::accumulate(bins[0].begin(), bins[0].end(), 0u); }

void histogram_counts::add(const histogram_counts& other)
{
    for (std::size_t i = 0; i < bins.size(); ++i)
        for (std::size_t level = 0; level < level_count; ++level)
            bins[i][level] += other.bins[i][level];
}

void draw_histogram(const histogram_counts& counts, const rect& area, int line_width, scope_picture& picture)
{
    const rect plot = plot_of(area, line_width);
    // The steps of the axis below divide by width - 1.
    if (plot.width < 2 || plot.height < 2)
        return;
    draw_scale(plot, line_width, picture);
    // Column 0 shows level 0, the last column level 255.
    const tent_axis levels(level_count, static_cast<std::size_t>(plot.width), 0,
                           static_cast<double>(last_level) / (plot.width - 1));
    // One factor for all channels, so that their heights can be compared.
    const std::uint32_t full = full_count(counts);
    for (std::size_t i = 0; i < counts.bins.size(); ++i)
        draw_channel(heights_of(counts.bins[i], full, plot.height), levels, channel_light[i], plot, picture);
    draw_clip_marks(counts, plot, line_width, picture);
}

scope_labels histogram_labels(const rect& area, int line_width)
{
    constexpr double beside = 12, above = 8; // of the text's centre from its line and from the edge, in line widths
    const rect plot = plot_of(area, line_width);
    scope_labels labels;
    for (int i = 0; i <= scale_parts; ++i)
    {
        const double x = column_of(static_cast<double>(i) / scale_parts, plot);
        // The rightmost text is to the left of its line, where there is room.
        labels.push_back({scale_texts[static_cast<std::size_t>(i)],
                          i == scale_parts ? x - beside * line_width : x + beside * line_width,
                          plot.y + plot.height - above * line_width});
    }
    return labels;
}

} // namespace ov1
