// The skin tables and masks that are compiled into the engine. make_looks computes their values during the build of the
// project and writes the source file.
#pragma once

#include "effect/lut/lut_argb.h"
#include "effect/lut/lut_mask.h"

#include <array>

namespace ov1
{

// The names are German: Haut, skin; heller, lighter; dunkler, darker; Gelbsucht, jaundice; Sonnenbrand, sunburn.
using skin_table_data = std::array<argb_float, lut_argb<lut_edge>::entry_count>;

extern const skin_table_data skintone_lut_haut_heller_data;  ///< skin lighter
extern const skin_table_data skintone_lut_haut_dunkler_data; ///< skin darker
extern const skin_table_data skintone_lut_gelbsucht_data;    ///< skin yellowish
extern const skin_table_data skintone_lut_sonnenbrand_data;  ///< skin reddened

namespace lut_masks
{

extern const lut_mask<lut_edge> select_skintones;         ///< 1 on skin, 0 far from it
extern const lut_mask<lut_edge> select_skintones_extreme; ///< 0 on skin in a wider sense, 1 elsewhere

} // namespace lut_masks

} // namespace ov1
