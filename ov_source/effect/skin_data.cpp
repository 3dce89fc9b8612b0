#include "effect/skin_data.h"

namespace ov1
{

namespace
{

skin_table_data identity_data()
{
    skin_table_data data;
    const lut_argb<lut_edge> identity;
    for (std::size_t i = 0; i < data.size(); ++i)
        data[i] = identity.get_entries()[i];
    return data;
}

lut_mask<lut_edge> filled(float weight)
{
    lut_mask<lut_edge> mask;
    mask.weights.fill(weight);
    return mask;
}

} // namespace

const skin_table_data skintone_lut_haut_heller_data = identity_data();
const skin_table_data skintone_lut_haut_dunkler_data = identity_data();
const skin_table_data skintone_lut_gelbsucht_data = identity_data();
const skin_table_data skintone_lut_sonnenbrand_data = identity_data();

namespace lut_masks
{

const lut_mask<lut_edge> select_skintones = filled(0.0f);
const lut_mask<lut_edge> select_skintones_extreme = filled(1.0f);

} // namespace lut_masks

} // namespace ov1
