#include "effect/lut/instruction_sets.h"

#include "platform/highway_targets.h" // before Highway

#include <hwy/highway.h>

namespace ov1
{

namespace
{

/// Restricts the dispatch of Highway to the sets in `allowed`; 0 lifts the restriction.
void choose_again([[maybe_unused]] std::int64_t allowed)
{
#if HWY_TARGETS & (HWY_TARGETS - 1) // more than one was compiled
    hwy::SetSupportedTargetsForTest(allowed);
    hwy::GetChosenTarget().Update(hwy::SupportedTargets());
#endif
}

} // namespace

std::vector<instruction_set> present_instruction_sets()
{
    std::vector<instruction_set> sets;
    for (std::int64_t left = HWY_SUPPORTED_TARGETS & HWY_TARGETS; left != 0; left &= left - 1)
    {
        const std::int64_t bit = left & -left;
        sets.push_back({hwy::TargetName(bit), bit}); // better sets have lower bits
    }
    return sets;
}

forced_instruction_set::forced_instruction_set(const instruction_set& set) { choose_again(set.bit); }

forced_instruction_set::~forced_instruction_set() { choose_again(0); }

} // namespace ov1
