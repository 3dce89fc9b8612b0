#include "effect/reference/build_lut_reference.h"

#include "effect/build/build_plan.h"
#include "effect/lut/integer_hsl.h"
#include "effect/reference/lut_utils.h"
#include "effect/reference/skin_tones.h"

namespace ov1
{

namespace
{

using table17 = lut_argb<lut_edge>;

void add_all(table17& table, const std::vector<table_share>& shares, bool limit)
{
    for (const table_share& share : shares)
        lut_utils::add(table, *share.table, share.amount, limit);
}

/// Chroma in percent of the entry's own, luminance in percent of white, both added.
argb_float with_chroma_and_luminance(const argb_float& entry, double chroma_percent, double luminance_percent)
{
    hexcone colour = hexcone_of(entry);
    colour.chroma_percent += chroma_percent / 100.0 * colour.chroma_percent;
    colour.lightness_percent += luminance_percent;
    return entry_of(colour, entry.a);
}

} // namespace

void build_lut_reference(const grade_settings& settings, const veridial_luts& looks, const skin_tables& skin,
                         lut<lut_edge>& table)
{
    const build_plan plan = plan_build(settings, looks);
    table.init();
    if (plan.bypass)
        return;
    // The order of the steps is that of build_kernel.cpp, which must change together with it.
    table.update(plan.wheels);

    // Both looks are added to a table of their own first, so that neither limits the other.
    table17 working;
    add_all(working, plan.sky_and_greenery, false);
    lut_utils::add(table, working, 1.0f, true);

    lut_utils::modify_skin_tones(table, plan.skin.protect, plan.skin.chroma_push, plan.skin.hue_push, skin.yellowish,
                                 skin.reddened, plan.skin.brightness, skin.lighter, skin.darker);
    for (argb_float& entry : table.get_entries())
        entry = with_chroma_and_luminance(entry, plan.chroma_percent, plan.luminance_percent);
    for (const table_share& share : plan.saturation)
        lut_utils::apply(table, *share.table, share.amount);
    add_all(table, plan.film_contrast, true);
}

} // namespace ov1
