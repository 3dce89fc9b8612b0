// The waveform: for each column of a picture, how many of its pixels have which level.
#pragma once

#include "scopes/scope_labels.h"
#include "scopes/scope_picture.h"
#include "scopes/signal_levels.h"

#include <vector>

namespace ov1
{

/// Counts of one signal. Column c holds the pixels x with x * columns / width == c, rounded down.
struct waveform_counts
{
    std::size_t columns = 0;
    std::vector<std::uint32_t> bins; ///< columns x level_count, the level innermost

    const std::uint32_t* column(std::size_t c) const { return bins.data() + c * level_count; }

    /// All zero, with so many columns.
    void reset(std::size_t new_columns);
    /// Adds counts of as many columns.
    void add(const waveform_counts& other);
};

/// Draws the waveform into a part of a picture: the scale first, then the trace over it. Level 0 is at the bottom,
/// level 255 at the top; beyond each runs a strip that marks the columns with pixels at that level or outside. Columns
/// are spread or added up to the area's width. The area lies within the
/// picture; line widths in pixels.
void draw_waveform(const waveform_counts& counts, const scope_colour& trace, const rect& area, int line_width,
                   scope_picture& picture);

/// 0, 25, 50, 75 and 100 percent, at the left edge of the area above their lines.
scope_labels waveform_labels(const rect& area, int line_width);

} // namespace ov1
