// The vectorscope: how many pixels have which colour difference, hue being the angle and saturation the radius.
#pragma once

#include "scopes/scope_labels.h"
#include "scopes/scope_picture.h"
#include "scopes/signal_levels.h"

#include <vector>

namespace ov1
{

struct vectorscope_counts
{
    std::vector<std::uint32_t> bins; ///< level_count x level_count, Cb innermost; each axis as in signal_levels

    std::uint32_t at(std::size_t cb, std::size_t cr) const { return bins[cr * level_count + cb]; }

    /// All zero.
    void reset();
    void add(const vectorscope_counts& other);
};

/// Angle of the line near which skin of every tone lies, in degrees from +Cb towards +Cr: the direction of +I of the
/// NTSC colour signal, whose axes stand 33 degrees ahead of U and V (SMPTE 170M); scopes draw it at the same angle over
/// Cb and Cr.
inline constexpr double skin_line_degrees = 123;

/// Where a colour difference lies within an area, in pixels: Cb runs to the right, Cr upwards, and the square of
/// -0.55..0.55 fills the shorter side.
struct vectorscope_place
{
    double x = 0;
    double y = 0;
};
vectorscope_place place_of(const colour_difference& c, const rect& area);

/// Draws the scale and over it the trace, each bin in the colour that it stands for: a circle at radius 0.5, a cross in
/// the middle, and a frame around each of the primaries and secondaries at 75 %. The area lies within the
/// picture; line widths in pixels.
void draw_vectorscope(const vectorscope_counts& counts, bool skin_line, const rect& area, int line_width,
                      scope_picture& picture);

/// R, Mg, B, Cy, G and Yl, each beside its frame.
scope_labels vectorscope_labels(const rect& area);

} // namespace ov1
