// The colour spaces in which looks are computed (OKLab) and judged (CIELAB).
#pragma once

#include "effect/lut/integer_hsl.h"

namespace ov1
{

/// Between the engine's code values, which are display-referred sRGB, and linear light, both nominally 0..1. Values
/// outside are kept; below 0 the curve is mirrored. IEC 61966-2-1.
double linear_of_code(double code);
double code_of_linear(double linear);

/// Ottosson, "A perceptual color space for image processing" (2020), as in CSS Color 4.
struct oklab
{
    double lightness; ///< 0 black, 1 white
    double a;
    double b;
};

/// The same in polar form.
struct oklch
{
    double lightness;
    double chroma; ///< about 0.32 at most within sRGB
    double hue;    ///< degrees, 0..360; 0 for an exact grey
};

/// CIE 1976 L*a*b* under D65.
struct cielab
{
    double lightness; ///< 0..100
    double a;
    double b;
};

oklab oklab_of(const rgb_double& code);
oklab oklab_of(const oklch& colour);
oklch oklch_of(const oklab& colour);
oklch oklch_of(const rgb_double& code);
cielab cielab_of(const rgb_double& code);

/// Code values; colours outside sRGB have channels below 0 or above 1.
rgb_double code_of(const oklab& colour);
rgb_double code_of(const oklch& colour);

/// The smaller of the two angles from one hue to another, -180..180 degrees.
double hue_difference(double from, double to);

/// The code value, 0..1, of the grey with an OKLab lightness.
double grey_of_lightness(double lightness);

} // namespace ov1
