// The frames that all contenders render, computed from a few numbers.
// Both contents matter: neighbours that are alike read the same lines of the table, random ones do not.
#pragma once

#include "shared/argb_float.h"

#include <cstddef>
#include <vector>

namespace ov1::bench
{

enum class content
{
    natural, ///< gradients, a fine texture and grain: neighbours are similar, as in photographs
    random,  ///< every pixel is an independent random colour
};

/// A picture in memory.
struct frame
{
    std::size_t width;
    std::size_t height;
    std::vector<argb_float> pixels; ///< row by row, 0..1, alpha 1

    /// In pixels.
    std::size_t count() const { return pixels.size(); }
};

/// The same frame on every run of a machine. Machines whose sine functions differ can give other last bits.
frame make_frame(content what, std::size_t width, std::size_t height);

} // namespace ov1::bench
