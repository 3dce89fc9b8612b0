// The waveform: the number of pixels at each level, for each column of a picture.
#pragma once

#include "scopes/scope_labels.h"
#include "scopes/scope_picture.h"
#include "scopes/signal_levels.h"

#include <vector>

namespace ov1
{

/// Counts of one signal. Column c holds the pixels x with floor(x * columns / width) == c.
struct waveform_counts
{
    std::size_t columns = 0;
    std::vector<std::uint32_t> bins; ///< columns x level_count, the level innermost

    /// The level_count bins of a column; c must be below `columns`.
    const std::uint32_t* column(std::size_t c) const { return bins.data() + c * level_count; }

    /// Sets the number of columns and all bins to 0.
    void reset(std::size_t new_columns);
    /// Adds counts with the same number of columns.
    void add(const waveform_counts& other);
};

/// Draws the scale, then the trace over it. Level 0 is at the bottom, level 255 at the top; a strip below and above
/// marks columns with pixels at or beyond that level. Columns are spread over the width of the area or added up. The
/// area must be inside the picture; line_width is in pixels.
void draw_waveform(const waveform_counts& counts, const scope_colour& trace, const rect& area, int line_width,
                   scope_picture& picture);

/// 0, 25, 50, 75 and 100 percent, at the left edge of the area, above their lines.
scope_labels waveform_labels(const rect& area, int line_width);

} // namespace ov1
