#include "effect/build_lut_reference.h"

#include "effect/build_plan.h"
#include "effect/lut/integer_hsl.h"
#include "effect/lut/lut_utils.h"
#include "effect/skin_tones.h"

#include <algorithm>

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

/// Both in percent, added to what the entry has.
argb_float with_chroma_and_luminance(const argb_float& entry, double chroma_percent, double luminance_percent)
{
    const rgb_double u8{entry.r * 255.0, entry.g * 255.0, entry.b * 255.0};
    const double max = std::max({u8.r, u8.g, u8.b});
    const double min = std::min({u8.r, u8.g, u8.b});
    const double chroma = (max - min) * percent_per_u8;
    const rgb_double to = rgb_of({static_cast<std::int32_t>(hexcone_hue(u8)),
                                  limited_milli((chroma + chroma_percent / 100.0 * chroma) * 1000.0),
                                  limited_milli(((max + min) * half_sum_percent_per_u8 + luminance_percent) * 1000.0)});
    return {entry.a, static_cast<float>(to.r), static_cast<float>(to.g), static_cast<float>(to.b)};
}

} // namespace

void build_lut_reference(const grade_settings& settings, const veridial_luts& looks, const skin_tables& skin,
                         lut<lut_edge>& table)
{
    const build_plan plan = plan_build(settings, looks);
    table.init();
    if (plan.bypass)
        return;
    table.update(plan.wheels);

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
