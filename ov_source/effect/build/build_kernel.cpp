// Compiled once for every instruction set: foreach_target.h includes this file again for each.
#include "effect/build/build_kernel.h"

#include "platform/highway_targets.h" // before Highway

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "effect/build/build_kernel.cpp"
#include <hwy/foreach_target.h> // before highway.h, by its own rule

#include "effect/build/hexcone-inl.h"
#include "effect/build/skin_push-inl.h"
#include "effect/build/table_lookup-inl.h"

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace ov1::build_kernel
{
namespace HWY_NAMESPACE
{

/// All steps on one chunk, which stays in the cache from the first to the last. No step reads another entry of the
/// table that is built, so chunks do not depend on each other.
HWY_INLINE void build_chunk(const build_plan& plan, const skin_steps& skin, std::size_t first, argb_float* table)
{
    grid points;
    points.first = first;
    fill(points);
    chunk entries;
    bend(plan.wheels, points, entries);
    // Both looks are summed before the one limit, so that neither limits the other.
    chunk looks = points.identity;
    add_tables(looks, plan.sky_and_greenery, points, false);
    add(entries, looks, points, 1.0f, true);
    push_skin(skin, points, entries);
    change_chroma_and_luminance(plan.chroma_percent, plan.luminance_percent, entries);
    for (const table_share& share : plan.saturation)
        follow(share, entries);
    add_tables(entries, plan.film_contrast, points, true);

    const floats d;
    each_vector(
        [&](std::size_t i) HWY_ATTR
        {
            // Alpha of a built table is 1 everywhere.
            hn::StoreInterleaved4(hn::Set(d, 1.0f), hn::Load(d, entries.r + i), hn::Load(d, entries.g + i),
                                  hn::Load(d, entries.b + i), d, &table[first + i].a);
        });
}

void run_build_here(const build_plan& plan, const skin_steps& skin, argb_float* table)
{
    for (std::size_t first = 0; first + chunk_entries < entry_count; first += chunk_entries)
        build_chunk(plan, skin, first, table);
    build_chunk(plan, skin, entry_count - chunk_entries, table); // overlaps the chunk before: all chunks are whole
}

} // namespace HWY_NAMESPACE
} // namespace ov1::build_kernel
HWY_AFTER_NAMESPACE();

#if HWY_ONCE

namespace ov1::build_kernel
{

HWY_EXPORT(run_build_here);

void run_build(const build_plan& plan, const skin_steps& skin, argb_float* table)
{
    HWY_DYNAMIC_DISPATCH(run_build_here)(plan, skin, table);
}

} // namespace ov1::build_kernel

#endif
