// The effect as a first version would be written: a virtual call for every pixel, range-checked reads.
// All ratios "against plain code" compare with it.
#pragma once

#include "effect/lut/lut_argb.h"

#include <cstddef>
#include <memory>

namespace ov1::bench
{

/// One virtual call for each pixel.
class pixel_renderer
{
public:
    virtual ~pixel_renderer() = default;
    virtual void render_pixel(std::size_t x, std::size_t y, const argb_float& in, argb_float& out) const = 0;
};

/// A renderer with a copy of the table. Its results have the bits of lut_argb::lookup.
std::unique_ptr<pixel_renderer> make_plain_renderer(const lut_argb<lut_edge>& table);

/// Tetrahedral interpolation in double precision: the results that tetrahedral peers are checked against.
argb_float tetrahedral(const lut_argb<lut_edge>& table, const argb_float& c);

} // namespace ov1::bench
