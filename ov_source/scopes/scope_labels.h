// Where the words of a graticule stand; who shows the scope draws them in a face of its own.
#pragma once

#include <vector>

namespace ov1
{

/// A text of the English scale, the same in every language, and its middle in pixels of the scope's picture.
struct scope_label
{
    const char* text;
    double x = 0;
    double y = 0;
};

using scope_labels = std::vector<scope_label>;

} // namespace ov1
