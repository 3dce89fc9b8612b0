// A small copy of a picture, for contact sheets and previews.
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

/// Each pixel is the mean of its box of the source, straight colour weighted by alpha. The sides keep their ratio and
/// are at least 1 and at most so large; a picture that fits is copied as it is. Both limits are at least 1.
reduced_picture reduce(const still_reader& source, std::size_t max_width, std::size_t max_height);

} // namespace ov1::media
