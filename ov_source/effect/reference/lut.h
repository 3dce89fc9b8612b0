// The point-driven grid: an identity table bent towards colour points.
#pragma once

#include "effect/lut/lut_argb.h"
#include "effect/lut/lut_point.h"

#include <vector>

namespace ov1
{

/// A table whose entries follow from a list of points. Holds a falloff table of 65,536 floats, so one is kept and
/// updated rather than made anew.
template <std::size_t edge>
class lut : public lut_argb<edge>
{
public:
    /// The identity.
    lut();

    /// Recomputes every entry from the identity grid and the points. A point moves its source by its full offset,
    /// fading linearly to nothing at the distance R^2 in 16-bit units, where R runs from 2 to 512 as the radius runs
    /// from 1 to 256. Offsets of several points add up; the sum is limited to 0..1; alpha is 1.
    void update(std::vector<lut_point> points);

private:
    std::vector<float> falloff; ///< 1 - i / 65535
};

extern template class lut<lut_edge>;

} // namespace ov1
