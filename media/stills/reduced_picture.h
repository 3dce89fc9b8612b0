// A reduced copy of a picture, for contact sheets and previews.
#pragma once

#include "media/stills/still_reader.h"

#include <cstddef>
#include <vector>

namespace ov1::media
{

/// Rows of pixels without padding, upright, code values as the source stores them.
struct reduced_picture
{
    std::size_t width = 0;
    std::size_t height = 0;
    std::vector<argb_float> pixels;
};

/// Each pixel is the mean of a box of source pixels; straight colour is weighted by alpha. The sides keep their ratio
/// and are at least 1 and at most the given limits (at least 1); a picture that fits is copied unchanged.
reduced_picture reduce(const still_reader& source, std::size_t max_width, std::size_t max_height);

} // namespace ov1::media
