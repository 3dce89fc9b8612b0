// The vectorscope: the number of pixels at each colour difference; hue is the angle, saturation the radius.
#pragma once

#include "scopes/scope_labels.h"
#include "scopes/scope_picture.h"
#include "scopes/signal_levels.h"

#include <vector>

namespace ov1
{

/// The counts of one picture, or of some of its rows. Empty until reset() is called.
struct vectorscope_counts
{
    std::vector<std::uint32_t> bins; ///< level_count x level_count, Cb innermost; each axis as in signal_levels

    /// Both are levels, 0..255.
    std::uint32_t at(std::size_t cb, std::size_t cr) const { return bins[cr * level_count + cb]; }

    /// Sets all bins to 0.
    void reset();
    /// Adds counts bin by bin. Both must have been reset.
    void add(const vectorscope_counts& other);
};

/// The angle of the skin line, near which all skin tones lie, in degrees from +Cb towards +Cr. It is the direction of
/// +I of the NTSC colour signal, whose axes are 33 degrees ahead of U and V (SMPTE 170M); scopes draw it at the same
/// angle over Cb and Cr.
inline constexpr double skin_line_degrees = 123;

/// The position of a colour difference in an area, in pixels. Cb goes to the right, Cr upwards; -0.55..0.55 fills the
/// shorter side.
struct vectorscope_place
{
    double x = 0;
    double y = 0;
};
vectorscope_place place_of(const colour_difference& c, const rect& area);

/// Draws the scale, then the trace over it, each bin in its own colour. The scale has a circle at radius 0.5, a cross
/// in the centre, and a square around each primary and secondary colour at 75 %. The area must be inside the picture;
/// line_width is in pixels.
void draw_vectorscope(const vectorscope_counts& counts, bool skin_line, const rect& area, int line_width,
                      scope_picture& picture);

/// R, Mg, B, Cy, G and Yl, each next to its square.
scope_labels vectorscope_labels(const rect& area);

} // namespace ov1
