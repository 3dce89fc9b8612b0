#include "effect/skin_tables.h"

#include "effect/skin_data.h"

namespace ov1
{

// The data are arrays of the program file; tables need entries of their own.
skin_tables::skin_tables()
    : lighter(lut_argb<lut_edge>::from_std_array(skintone_lut_haut_heller_data))
    , darker(lut_argb<lut_edge>::from_std_array(skintone_lut_haut_dunkler_data))
    , yellowish(lut_argb<lut_edge>::from_std_array(skintone_lut_gelbsucht_data))
    , reddened(lut_argb<lut_edge>::from_std_array(skintone_lut_sonnenbrand_data))
{
}

} // namespace ov1
