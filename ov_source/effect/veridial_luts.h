// The eighteen look tables of the product.
#pragma once

#include "effect/lut/lut_argb.h"
#include "effect/zone.h"

#include <array>

namespace ov1
{

/// Read from the product's resources by the constructor and never changed, so any thread may read it. A table that
/// cannot be read is the identity: its look does nothing.
class veridial_luts
{
public:
    using table = lut_argb<lut_edge>;
    /// The tables of a pad's directions 1 to 4: up, left, down, right (angle_weights.h).
    using directions = std::array<const table*, 4>;

    /// Reads eighteen files through iutils.
    veridial_luts();

    /// Highlights lifted, flat, shadows lowered, S-curve.
    directions film_contrast() const;
    /// Dark turquoise, deep blue, bright purple, pale.
    directions sky() const;
    /// Yellow, bright, irish green, olive.
    directions greenery() const;
    /// The table for more or for less saturation of a zone.
    const table& saturation(zone z, bool more) const;

private:
    // Named as their files. Schatten are shadows, Mitten mids, Lichter highlights; 100 is more, minus100 less.
    table filmkontrast_100;
    table filmkontrast_minus100;
    table film_contrast_highlights_north;
    table film_contrast_shadows_south;
    table sky_100;
    table sky_minus100;
    table sky_bright_purple;
    table sky_dark_turquoise;
    table greenery_bright;
    table greenery_olive;
    table greenery_yellow;
    table greenery_irish;
    table saturation100_schatten;
    table saturation_minus100_schatten;
    table saturation100_mitten;
    table saturation_minus100_mitten;
    table saturation100_lichter;
    table saturation_minus100_lichter;
};

} // namespace ov1
