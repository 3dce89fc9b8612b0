// Positions of the texts of a graticule. The code that shows the scope draws them in its own font.
#pragma once

#include <vector>

namespace ov1
{

/// A text, the same in every language, and its centre in pixels of the scope's picture.
struct scope_label
{
    /// A literal: never freed.
    const char* text;
    double x = 0;
    double y = 0;
};

using scope_labels = std::vector<scope_label>;

} // namespace ov1
