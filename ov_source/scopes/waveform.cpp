#include "scopes/waveform.h"

#include "scopes/tent_axis.h"
#include "scopes/trace_curve.h"

#include <array>
#include <cmath>
#include <numeric>

namespace ov1
{

namespace
{

constexpr int mark_height = 3; // of the strips for clipped columns and of the gap to the plot, in line widths
constexpr int mark_gap = 2;
constexpr int scale_parts = 4;
constexpr std::array<const char*, scale_parts + 1> scale_texts{"0", "25", "50", "75", "100"};

/// The share (0..1) of a column's pixels at each level.
using density_column = std::array<float, level_count>;

/// The rows above and below the plot that belong to the strips.
int margin_of(int line_width) { return (mark_height + mark_gap) * line_width; }

/// The row that shows a position (0..1) of the scale.
double row_of(double share, const rect& area, int line_width)
{
    const int margin = margin_of(line_width);
    return area.y + margin + (1 - share) * (area.height - 2 * margin - 1);
}

/// The share of the pixels of a column at each level, for the columns first..end-1.
void read_densities(const waveform_counts& counts, std::size_t first, std::size_t end, density_column& densities)
{
    std::array<std::uint32_t, level_count> sums{};
    for (std::size_t c = first; c < end; ++c)
        for (std::size_t level = 0; level < level_count; ++level)
            sums[level] += counts.column(c)[level];
    // An empty column gives zeros.
    const std::uint32_t pixels = std::accumulate(sums.begin(), sums.end(), 0u);
    const float share = pixels == 0 ? 0.f : 1.f / static_cast<float>(pixels);
    for (std::size_t level = 0; level < level_count; ++level)
        densities[level] = static_cast<float>(sums[level]) * share;
}

void draw_scale(const rect& area, int line_width, scope_picture& picture)
{
    for (int i = 0; i <= scale_parts; ++i)
    {
        const bool is_limit = i == 0 || i == scale_parts;
        const int y = static_cast<int>(std::lround(row_of(static_cast<double>(i) / scale_parts, area, line_width)));
        paint_rect(picture, {area.x, y - line_width / 2, area.width, line_width},
                   is_limit ? limit_colour : graticule_colour);
    }
}

/// x is a column of the picture. The strip for level 255 is above the plot, that for level 0 below.
void draw_clip_marks(const density_column& densities, int x, const rect& area, int line_width, scope_picture& picture)
{
    // The curve of the trace, so that even a few clipped pixels are visible.
    const trace_curve& curve = trace_curve::get();
    const int height = mark_height * line_width;
    paint_rect(picture, {x, area.y, 1, height}, clip_colour, curve(densities[last_level]));
    paint_rect(picture, {x, area.y + area.height - height, 1, height}, clip_colour, curve(densities[0]));
}

} // namespace

void waveform_counts::reset(std::size_t new_columns)
{
    columns = new_columns;
    bins.assign(columns * level_count, 0);
}

void waveform_counts::add(const waveform_counts& other)
{
    for (std::size_t i = 0; i < bins.size(); ++i)
        bins[i] += other.bins[i];
}

void draw_waveform(const waveform_counts& counts, const scope_colour& trace, const rect& area, int line_width,
                   scope_picture& picture)
{
    const int margin = margin_of(line_width), rows = area.height - 2 * margin;
    if (rows < 2 || area.width < 1 || counts.columns == 0)
        return;
    draw_scale(area, line_width, picture);
    const trace_curve& curve = trace_curve::get();
    // Row 0 shows level 255, the last row level 0.
    const tent_axis levels(level_count, static_cast<std::size_t>(rows), static_cast<double>(last_level),
                           -static_cast<double>(last_level) / (rows - 1));
    const auto width = static_cast<std::size_t>(area.width);
    density_column densities;
    for (std::size_t i = 0; i < width; ++i)
    {
        // With fewer columns than pixels a column is repeated; with more, the columns of a pixel are added up.
        const std::size_t first = i * counts.columns / width;
        read_densities(counts, first, std::max(first + 1, (i + 1) * counts.columns / width), densities);
        const int x = area.x + static_cast<int>(i);
        for (int y = 0; y < rows; ++y)
        {
            const float cover = curve(levels.at(static_cast<std::size_t>(y), densities.data()));
            std::uint32_t& pixel = picture.row(area.y + margin + y)[x];
            pixel = blended(pixel, trace, cover);
        }
        draw_clip_marks(densities, x, area, line_width, picture);
    }
}

scope_labels waveform_labels(const rect& area, int line_width)
{
    constexpr double from_left = 12, above = 6; // of the text's centre from the edge and from its line, in line widths
    scope_labels labels;
    for (int i = 0; i <= scale_parts; ++i)
    {
        const double y = row_of(static_cast<double>(i) / scale_parts, area, line_width);
        // The text of the top line is below it, where there is room.
        labels.push_back({scale_texts[static_cast<std::size_t>(i)], area.x + from_left * line_width,
                          i == scale_parts ? y + above * line_width : y - above * line_width});
    }
    return labels;
}

} // namespace ov1
