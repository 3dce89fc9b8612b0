// The outcome that pictures and clips share.
#pragma once

#include "shared/failure.h"

#include <optional>
#include <vector>

namespace ov1
{

/// Collected while a job runs and printed at its end, so that the lines of one job stay together.
struct job_outcome
{
    std::optional<failure> failed; ///< where there is no output
    std::vector<failure> warnings; ///< with their subjects; their kinds are ignored
};

} // namespace ov1
