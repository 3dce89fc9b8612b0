// The outcome that pictures and clips share.
#pragma once

#include "shared/failure.h"

#include <optional>
#include <vector>

namespace ov1
{

struct job_outcome
{
    std::optional<failure> failed; ///< where there is no output
    std::vector<failure> warnings; ///< with their subjects; their kinds are ignored
};

} // namespace ov1
