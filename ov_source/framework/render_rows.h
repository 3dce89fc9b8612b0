// All rows of a picture through one renderer, on several threads.
#pragma once

#include "shared/argb_float.h"
#include "shared/half_float.h"

#include <cstddef>

namespace ov1
{

class row_renderer;

/// A picture in memory before and after rendering. element is argb_float (one a pixel) or half_bits (four a pixel, in
/// the order R, G, B, A). The caller owns both pictures; they are the same memory or do not overlap.
template <typename element>
struct picture_rows
{
    const element* in = nullptr;
    element* out = nullptr;
    std::size_t in_step = 0;  ///< elements from the start of a row to the start of the next
    std::size_t out_step = 0; ///< likewise
    std::size_t width = 0;    ///< in pixels
    std::size_t height = 0;
    bool is_bottom_up = false; ///< the first row in memory is the bottom row of the picture
};

/// Renders every row; row 0 of the renderer is the top row. At most max_threads threads, 0 for one per processor.
void render_rows(const row_renderer& renderer, const picture_rows<argb_float>& picture, unsigned max_threads);
void render_rows(const row_renderer& renderer, const picture_rows<half_bits>& picture, unsigned max_threads);

} // namespace ov1
