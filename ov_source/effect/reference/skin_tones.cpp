#include "effect/reference/skin_tones.h"

#include "effect/build/build_plan.h"
#include "effect/reference/lut_utils.h"
#include "effect/skin_data.h"

#include <cmath>

namespace ov1::lut_utils
{

namespace
{

/// Moves skin towards the identity. The product is rounded to a float once, as in the vector code.
template <std::size_t edge>
void protect_skin(lut_argb<edge>& table, double amount)
{
    const lut_argb<edge> identity;
    auto& entries = table.get_entries();
    for (std::size_t i = 0; i < entries.size(); ++i)
        entries[i] = lerp(entries[i], identity.get_entries()[i],
                          static_cast<float>(lut_masks::select_skintones.weights[i] * amount));
}

/// The conversion of add_chroma scales every entry by 256 / 255. Compared with the table that a push of 0 gives, only
/// the effect of the push itself is left, and nothing outside the mask moves.
template <std::size_t edge>
void push_chroma(lut_argb<edge>& table, int percent)
{
    if (percent == 0)
        return;
    lut_argb<edge> working;
    lut_argb<edge> no_push;
    add_chroma(working, percent, lut_masks::select_skintones_extreme, mask_mode::complement);
    add_chroma(no_push, 0, lut_masks::select_skintones_extreme, mask_mode::complement);
    add(working, no_push, -1.0f, false);
    add(table, working, 1.0f, true);
}

/// Adds the change that a reference table makes to skin.
template <std::size_t edge>
void push_towards(lut_argb<edge>& table, const lut_argb<edge>& reference, double amount)
{
    lut_argb<edge> working;
    lut_masks::select_skintones.mix(working, reference, mask_mode::as_is);
    add(table, working, static_cast<float>(amount), true);
}

} // namespace

template <std::size_t edge>
void modify_skin_tones(lut_argb<edge>& table, double protect, double chroma_push, double hue_push,
                       const lut_argb<edge>& yellowish, const lut_argb<edge>& reddened, double brightness,
                       const lut_argb<edge>& lighter, const lut_argb<edge>& darker)
{
    if (protect > 0.0)
        protect_skin(table, protect);
    if (std::abs(chroma_push) >= least_skin_push)
        push_chroma(table, static_cast<int>(chroma_push * most_skin_chroma_percent));
    if (std::abs(hue_push) >= least_skin_push)
        push_towards(table, hue_push > 0.0 ? yellowish : reddened, std::abs(hue_push));
    if (std::abs(brightness) >= least_skin_push)
        push_towards(table, brightness > 0.0 ? lighter : darker, std::abs(brightness));
}

template void modify_skin_tones<lut_edge>(lut_argb<lut_edge>&, double, double, double, const lut_argb<lut_edge>&,
                                          const lut_argb<lut_edge>&, double, const lut_argb<lut_edge>&,
                                          const lut_argb<lut_edge>&);

} // namespace ov1::lut_utils
