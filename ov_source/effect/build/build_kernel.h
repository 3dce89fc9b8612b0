// The steps of a build over all grid points, in vectors.
//
//   entry     the colour of a grid point
//   chunk     128 consecutive entries, one array per channel; entries do not depend on each other, so a chunk goes
//             through all steps while it is in the first cache
//   grid      what the grid points of a chunk stand for before any step acts
//   share     a table and how much of it acts (table_share)
//   weight    how far an entry moves towards another colour, 0..1
//   fraction  distance of a position from the grid point below it, in grid steps
//   milli     whole thousandths: of a degree for hues, of a percent for chroma and lightness
//
// Every operation is the one of the plain code (effect/reference/), in its order and precision, so that the bits are
// the same on every instruction set. Where another formula gives the same value faster, a comment says why it does.
#pragma once

#include "effect/build/build_plan.h"
#include "effect/lut/lut_mask.h"

#include <vector>

namespace ov1
{

/// A plan's skin_push as the operations that it leads to.
struct skin_steps
{
    const lut_mask<lut_edge>* skin = nullptr;        ///< 1 on skin
    const lut_mask<lut_edge>* beyond_skin = nullptr; ///< 0 on skin in a wider sense
    const lut_argb<lut_edge>* no_push = nullptr;     ///< what a chroma push of 0 makes of the identity
    double protect = 0.0;                            ///< 0 for none
    int chroma_percent = 0;                          ///< 0 for none
    std::vector<table_share> towards;                ///< reference tables
};

namespace build_kernel
{

/// Writes the 4913 entries of the table that the plan asks for; its bypass is ignored. The reach of the plan's points
/// is derived (derive_reach). The pointers of skin are not null. Any thread.
void run_build(const build_plan& plan, const skin_steps& skin, argb_float* table);

} // namespace build_kernel

} // namespace ov1
