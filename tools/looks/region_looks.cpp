#include "tools/looks/region_looks.h"

#include "tools/looks/colour_region.h"

namespace ov1
{

namespace
{

// Hue: zero, full, full, zero; lightness: zero, full; chroma: full, zero. A look that turns the hue has a wider edge on
// the side that it turns to: in an edge narrower than about twice the turn, colours would overtake each other and the
// lattice would fold. Greens that are emerald already need no turn towards it, so that region ends early: turned
// further they would become mint.

// Full weight lies within the hues of real subjects (memory_colours.cpp: sky 206 to 265, leaves 110 to 146, skin 21 to
// 79), and ends at about their largest chroma: paint and neon light are left alone.
constexpr colour_region sky{{175, 226, 264, 320}, 0.20, 0.50, 0.115, 0.245};
constexpr colour_region sky_to_purple{{175, 226, 264, 340}, 0.20, 0.50, 0.115, 0.245};
constexpr colour_region sky_to_turquoise{{150, 226, 264, 320}, 0.20, 0.50, 0.115, 0.245};
constexpr colour_region greenery{{70, 112, 146, 190}, 0.10, 0.38, 0.25, 0.40};
constexpr colour_region greenery_to_emerald{{70, 112, 126, 190}, 0.10, 0.38, 0.25, 0.40};
constexpr colour_region skin{{-8, 30, 60, 118}, 0.14, 0.42, 0.100, 0.190};

// The regions of the masks end before the yellowest grass. The skin tables act through the first mask, so the edges of
// the two are apart: two steep edges in one place would fold the lattice.
constexpr colour_region selected_skin{{-8, 28, 84, 108}, 0.14, 0.42, 0.115, 0.205};
constexpr colour_region selected_wide_skin{{-20, 26, 84, 108}, 0.10, 0.34, 0.125, 0.225};

} // namespace

// Lightness, chroma ratio and hue of each move. Looks on opposite sides of a pad move colours in opposite directions:
// measure 8 holds them to it.
rgb_double sky_dark_turquoise(const rgb_double& code) { return moved(code, sky_to_turquoise, {-0.045, 1.08, -29.0}); }
rgb_double sky_100(const rgb_double& code) { return moved(code, sky, {-0.090, 1.36, 0.0}); }
rgb_double sky_bright_purple(const rgb_double& code) { return moved(code, sky_to_purple, {0.045, 1.06, 30.0}); }
rgb_double sky_minus100(const rgb_double& code) { return moved(code, sky, {0.085, 1.0 / 1.36, 0.0}); }

rgb_double greenery_yellow(const rgb_double& code) { return moved(code, greenery, {0.030, 1.05, -18.0}); }
rgb_double greenery_bright(const rgb_double& code) { return moved(code, greenery, {0.100, 1.25, 0.0}); }
rgb_double greenery_irish(const rgb_double& code) { return moved(code, greenery_to_emerald, {-0.050, 1.18, 19.0}); }
rgb_double greenery_olive(const rgb_double& code) { return moved(code, greenery, {-0.075, 0.72, -8.0}); }

rgb_double skin_lighter(const rgb_double& code) { return moved(code, skin, {0.085, 0.96, 0.0}); }
rgb_double skin_darker(const rgb_double& code) { return moved(code, skin, {-0.090, 1.0 / 0.96, 0.0}); }
rgb_double skin_yellowish(const rgb_double& code) { return moved(code, skin, {0.0, 1.12, 17.0}); }
rgb_double skin_reddened(const rgb_double& code) { return moved(code, skin, {-0.010, 1.12, -18.0}); }

// Dark skin is only a few steps from grey. The skin tables, which act through the first mask, have their own soft edge
// there, so the mask may begin early. The chroma push, which acts through the wide mask, has almost none: beginning
// early it would leave blotches on warm walls.
double skin_weight(const rgb_double& code) { return mask_weight(code, selected_skin, 2.5); }
double wide_skin_weight(const rgb_double& code) { return mask_weight(code, selected_wide_skin, 3.5); }

} // namespace ov1
