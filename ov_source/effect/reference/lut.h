// The identity table bent by colour points.
// The product bends the grid in build_grid-inl.h; this is the same arithmetic as plain code.
#pragma once

#include "effect/lut/lut_argb.h"
#include "effect/lut/lut_point.h"

#include <vector>

namespace ov1
{

/// A table whose entries are computed from a list of points. It holds a falloff table of 65,536 floats: keep one and
/// update it.
template <std::size_t edge>
class lut : public lut_argb<edge>
{
public:
    /// The identity.
    lut();

    /// Recomputes every entry from the identity grid and the points. A point moves its source by its full offset and
    /// other colours by less, falling linearly to nothing at its reach (derive_reach). Offsets of several points add
    /// up; the sum is limited to 0..1; alpha is 1.
    void update(std::vector<lut_point> points);

private:
    std::vector<float> falloff; ///< 1 - i / 65535
};

extern template class lut<lut_edge>;

} // namespace ov1
