// The looks of sky, greenery and skin, and the masks that select skin.
#pragma once

#include "effect/lut/integer_hsl.h"

namespace ov1
{

// Each returns a colour, in code values within 0..1, as it is at full strength. Greys and colours outside the region
// are returned unchanged.

/// Dark turquoise: the sky of a southern afternoon, darker and towards cyan.
rgb_double sky_dark_turquoise(const rgb_double& code);
/// A deeper, more saturated blue, as behind a polarising filter.
rgb_double sky_100(const rgb_double& code);
/// Bright purple: lighter and towards violet, as after sunset.
rgb_double sky_bright_purple(const rgb_double& code);
/// Paler and hazier, as on a humid day.
rgb_double sky_minus100(const rgb_double& code);

/// Late-summer grass: towards yellow.
rgb_double greenery_yellow(const rgb_double& code);
/// Fresh spring green: lighter and livelier.
rgb_double greenery_bright(const rgb_double& code);
/// A lush meadow after rain: towards emerald.
rgb_double greenery_irish(const rgb_double& code);
/// Olive: muted, darker and a little yellow.
rgb_double greenery_olive(const rgb_double& code);

/// Lighter skin, as in softer light, and a little paler.
rgb_double skin_lighter(const rgb_double& code);
/// Darker skin, as tanned, and a little more colourful.
rgb_double skin_darker(const rgb_double& code);
/// Skin towards yellow, as under a warm lamp.
rgb_double skin_yellowish(const rgb_double& code);
/// Skin towards red, as after a day in the sun.
rgb_double skin_reddened(const rgb_double& code);

/// How much a colour counts as skin, 0..1, for faces of all tones. Wood, sand and autumn leaves have the same colours
/// and count as skin too.
double skin_weight(const rgb_double& code);
/// The same in a wider sense, with lips, reddened skin and skin in shadow.
double wide_skin_weight(const rgb_double& code);

} // namespace ov1
