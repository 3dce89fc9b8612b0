// The histogram: how many pixels have which level of red, green and blue.
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

/// Draws the three channels over one another, level 0 at the left; where they meet their colours add up. Heights are
/// square roots of counts, so that small ones are seen; the largest count between the first and the last level is as
/// high as the area, and taller ones are cut. Small squares in the upper corners mark the channels that have pixels at
/// level 0 or 255 or outside. The area lies within the
/// picture; line widths in pixels.
void draw_histogram(const histogram_counts& counts, const rect& area, int line_width, scope_picture& picture);

/// 0, 25, 50, 75 and 100 percent at the lower edge.
scope_labels histogram_labels(const rect& area, int line_width);

} // namespace ov1
