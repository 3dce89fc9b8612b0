// "veridial grade": applies a grade to pictures and clips.
#pragma once

#include "command_line/program.h"

namespace ov1
{

/// Inputs are graded one after the other, and a failed one does not stop the others. Returns their common exit code, or
/// some_failed.
exit_code run_grade(std::span<const std::string> arguments, console& out);

} // namespace ov1
