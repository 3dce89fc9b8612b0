// The steps of a build over all grid points, in vectors.
#pragma once

#include "effect/build/build_plan.h"
#include "effect/lut/lut_mask.h"

#include <vector>

namespace ov1
{

/// What modify_skin_tones does with a plan's skin_push, decided.
struct skin_steps
{
    const lut_mask<lut_edge>* skin = nullptr;        ///< 1 on skin
    const lut_mask<lut_edge>* beyond_skin = nullptr; ///< 0 on skin in a wider sense
    const lut_argb<lut_edge>* still = nullptr;       ///< what add_chroma makes of the identity with an amount of 0
    double protect = 0.0;                            ///< 0 for none
    int chroma_percent = 0;                          ///< 0 for none
    std::vector<table_share> towards;                ///< reference tables
};

/// Writes the entries of the table that build_lut_reference gives for a plan without bypass, to the bit. The reach of
/// the plan's points is derived.
void run_build(const build_plan& plan, const skin_steps& skin, argb_float* entries);

} // namespace ov1
