#include "scopes/parade.h"

namespace ov1
{

namespace
{

constexpr int gap = 4; // between two waveforms, in line widths
constexpr std::array<scope_colour, 3> channel_colours{{{255, 92, 84}, {92, 226, 104}, {104, 146, 255}}};

} // namespace

std::array<rect, 3> parade_areas(const rect& area, int line_width)
{
    // The width that the waveforms share; 0 where the gaps alone are wider than the area.
    const int room = std::max(0, area.width - 2 * gap * line_width);
    std::array<rect, 3> areas;
    for (int i = 0; i < 3; ++i)
    {
        // Both edges are computed from the whole width, so that rounding never adds up to a missing column.
        const int left = room * i / 3, right = room * (i + 1) / 3;
        areas[static_cast<std::size_t>(i)] = {area.x + left + i * gap * line_width, area.y, right - left, area.height};
    }
    return areas;
}

void draw_parade(const parade_counts& counts, const rect& area, int line_width, scope_picture& picture)
{
    const auto areas = parade_areas(area, line_width);
    for (std::size_t i = 0; i < counts.size(); ++i)
        draw_waveform(counts[i], channel_colours[i], areas[i], line_width, picture);
}

scope_labels parade_labels(const rect& area, int line_width)
{
    // The three scales are equal, so that one set of texts is enough.
    return waveform_labels(parade_areas(area, line_width)[0], line_width);
}

} // namespace ov1
