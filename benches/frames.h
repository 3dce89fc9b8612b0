// The frames that everybody renders, made of nothing but a few numbers.
#pragma once

#include "shared/argb_float.h"

#include <cstddef>
#include <vector>

namespace ov1::bench
{

enum class content
{
    natural, ///< soft slopes, a fine texture and grain: neighbours are alike, as in photographs
    random,  ///< every pixel anywhere in the cube
};

struct frame
{
    std::size_t width;
    std::size_t height;
    std::vector<argb_float> pixels; ///< row by row, 0..1, alpha 1

    std::size_t count() const { return pixels.size(); }
};

/// The same on every machine that computes sines alike; what is rendered of it is compared on one machine only.
frame make_frame(content what, std::size_t width, std::size_t height);

} // namespace ov1::bench
