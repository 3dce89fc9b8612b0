// Soft edges: how a weight sets in, and how a channel is kept within its range.
#pragma once

#include "effect/lut/integer_hsl.h"

namespace ov1
{

/// Rises from 0 at from to 1 at to and stays there on both sides. Half a line and half a smoothstep: its largest slope
/// is 1.25 / (to - from), which leaves room on a coarse grid.
double ramp(double x, double from, double to);

/// The quintic smoothstep from 0 at from to 1 at to.
double smoothstep(double x, double from, double to);

/// Rises, stays full, falls.
struct window
{
    double zero_below;
    double full_from;
    double full_to;
    double zero_above;

    /// The weight at x, 0..1.
    double weight(double x) const { return ramp(x, zero_below, full_from) * (1.0 - ramp(x, full_to, zero_above)); }
};

/// How far a colour is from grey, in steps of the 17-point grid: 16 x (largest - smallest channel).
double grid_distance_from_grey(const rgb_double& code);

/// Moves each channel of a colour towards the target, less and less as the room on that side of 0..1 is used up:
/// with room r a step d becomes k r tanh(d / (k r)). Never leaves 0..1; on the faces of the cube the slope stays at
/// 1 - k at least, so that neighbouring grid points keep their order.
rgb_double rolled_off(const rgb_double& from, const rgb_double& target, double k);

} // namespace ov1
