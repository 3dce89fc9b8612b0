// Soft edges for weights, and soft limits for channels.
#pragma once

#include "effect/lut/integer_hsl.h"

namespace ov1
{

/// 0 up to from, rising to 1 at to, 1 beyond. The mean of a line and a smoothstep: its largest slope is
/// 1.25 / (to - from), little more than a line's, so that a coarse grid can follow it.
double ramp(double x, double from, double to);

/// The quintic smoothstep, from 0 at from to 1 at to, flat at both ends.
double smoothstep(double x, double from, double to);

/// A weight that rises, stays at 1 and falls.
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

/// Moves each channel of a colour towards the target, by less the more of the room on that side of 0..1 it takes: with
/// room r a step d becomes k r tanh(d / (k r)). The result never leaves 0..1, and its slope at the faces of the cube is
/// at least 1 - k, so that neighbouring grid points keep their order.
rgb_double rolled_off(const rgb_double& from, const rgb_double& target, double k);

} // namespace ov1
