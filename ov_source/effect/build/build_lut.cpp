#include "effect/build/build_lut.h"

#include "effect/build/build_kernel.h"
#include "effect/lut/integer_hsl.h"
#include "effect/skin_data.h"

#include <cmath>

namespace ov1
{

namespace
{

/// The identity after the integer conversion, which by itself scales every entry by 256 / 255. A chroma push is
/// compared with this table, so that only what the push does is added and nothing outside the mask moves.
const lut_argb<lut_edge>& table_of_no_push()
{
    static const lut_argb<lut_edge> converted = []
    {
        lut_argb<lut_edge> table;
        for (argb_float& entry : table.get_entries())
            entry = entry_of(hexcone_of(entry), entry.a);
        return table;
    }();
    return converted;
}

/// Leaves out what does not act, as modify_skin_tones does.
skin_steps decide(const skin_push& push, const skin_tables& tables)
{
    const auto acts = [](double amount) { return std::abs(amount) >= least_skin_push; };
    const auto share = [](const lut_argb<lut_edge>& table, double amount)
    { return table_share{&table, static_cast<float>(std::abs(amount))}; };

    skin_steps steps;
    steps.skin = &lut_masks::select_skintones;
    steps.beyond_skin = &lut_masks::select_skintones_extreme;
    steps.no_push = &table_of_no_push();
    if (push.protect > 0.0)
        steps.protect = push.protect;
    if (acts(push.chroma_push))
        steps.chroma_percent = static_cast<int>(push.chroma_push * most_skin_chroma_percent);
    if (acts(push.hue_push))
        steps.towards.push_back(share(push.hue_push > 0.0 ? tables.yellowish : tables.reddened, push.hue_push));
    if (acts(push.brightness))
        steps.towards.push_back(share(push.brightness > 0.0 ? tables.lighter : tables.darker, push.brightness));
    return steps;
}

} // namespace

void build_lut(const grade_settings& settings, const veridial_luts& looks, const skin_tables& skin,
               lut_argb<lut_edge>& table)
{
    build_plan plan = plan_build(settings, looks);
    if (plan.bypass)
    {
        table.init();
        return;
    }
    for (lut_point& point : plan.wheels)
        derive_reach(point);
    build_kernel::run_build(plan, decide(plan.skin, skin), table.get_entries().data());
}

} // namespace ov1
