// The histogram: the number of pixels at each level of red, green and blue.
#pragma once

#include "scopes/scope_labels.h"
#include "scopes/scope_picture.h"
#include "scopes/signal_levels.h"

#include <array>

namespace ov1
{

/// The counts of one picture, or of some of its rows.
struct histogram_counts
{
    /// Red, green, blue.
    std::array<std::array<std::uint32_t, level_count>, 3> bins{};

    /// The number of pixels counted, the same for each channel.
    std::uint32_t pixels() const;
    /// Adds the counts of other rows of the same picture, bin by bin.
    void add(const histogram_counts& other);
};

/// Draws the three channels over each other, level 0 at the left; their colours are added where they overlap. Heights
/// are square roots of counts, so that small counts are visible. The largest count between the first and the last level
/// has the height of the area; larger counts are cut off. Small squares in the upper corners mark channels with pixels
/// at or beyond level 0 or 255. The area must be inside the picture; line_width is in pixels.
void draw_histogram(const histogram_counts& counts, const rect& area, int line_width, scope_picture& picture);

/// The texts of the scale that draw_histogram draws with the same area and line_width:
/// 0, 25, 50, 75 and 100 percent at the lower edge.
scope_labels histogram_labels(const rect& area, int line_width);

} // namespace ov1
