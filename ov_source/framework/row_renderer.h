// Renders rows of pixels with a fixed state of the effect.
#pragma once

#include "shared/argb_float.h"
#include "shared/half_float.h"
#include "shared/rgb_planes.h"

#include <cstddef>

namespace ov1
{

/// Taken once for each tile or picture, so that all its rows use the same table even if parameters change meanwhile.
class row_renderer
{
public:
    virtual ~row_renderer() = default;

    /// Renders count pixels of row y. in and out may be the same. Any number of threads at once.
    virtual void render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count) const = 0;

    /// The same for half floats, four per pixel in the order R, G, B, A. All four inputs are clamped to 0..1, a NaN
    /// becomes 0; the results are rounded to the nearest half and not clamped. This default calls render_row.
    virtual void render_row_half(std::size_t y, const half_bits* in, half_bits* out, std::size_t count) const;

    /// The same in place on one row per channel, without alpha. Callers pass pieces that fit the cache. This default
    /// calls render_row.
    virtual void render_row_planes(std::size_t y, const rgb_planes<float>& row, std::size_t count) const;
};

} // namespace ov1
