// The histogram: the number of pixels at each level of red, green and blue.
#pragma once

#include "scopes/scope_labels.h"
#include "scopes/scope_picture.h"
#include "scopes/signal_levels.h"

#include <array>

namespace ov1
{

struct histogram_counts
{
    /// Red, green, blue.
    std::array<std::array<std::uint32_t, level_count>, 3> bins{};

    std::uint32_t pixels() const;
    void add(const histogram_counts& other);
};

/// Draws the three channels over each other, level 0 at the left; their colours are added where they overlap. Heights
/// are square roots of counts, so that small counts are visible. The largest count between the first and the last level
/// has the height of the area; larger counts are cut off. Small squares in the upper corners mark channels with pixels
/// at or beyond level 0 or 255. The area must be inside the picture; line_width is in pixels.
void draw_histogram(const histogram_counts& counts, const rect& area, int line_width, scope_picture& picture);

/// 0, 25, 50, 75 and 100 percent at the lower edge.
scope_labels histogram_labels(const rect& area, int line_width);

} // namespace ov1
