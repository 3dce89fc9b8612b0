// Renders rows of pixels with one state of the effect.
#pragma once

#include "shared/argb_float.h"
#include "shared/half_float.h"
#include "shared/rgb_planes.h"

#include <cstddef>

namespace ov1
{

/// Taken once for a tile or a picture, so that all its rows are rendered alike whatever changes meanwhile.
class row_renderer
{
public:
    virtual ~row_renderer() = default;

    /// Renders count pixels of row y. in and out may be the same. Safe from several threads at once.
    virtual void render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count) const = 0;

    /// The same on halfs, four a pixel in the order R, G, B, A. All four are limited to 0..1 on the way in, a NaN being
    /// 0; the results are rounded to the nearest half and not limited. This one goes through render_row.
    virtual void render_row_half(std::size_t y, const half_bits* in, half_bits* out, std::size_t count) const;

    /// The same in place on a row of each channel, without alpha; for rows in pieces that the cache holds. This one
    /// goes through render_row.
    virtual void render_row_planes(std::size_t y, const rgb_planes<float>& row, std::size_t count) const;
};

} // namespace ov1
