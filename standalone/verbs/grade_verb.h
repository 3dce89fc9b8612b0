// "veridial grade": applies a grade to pictures and clips.
#pragma once

#include "command_line/program.h"

namespace ov1
{

exit_code run_grade(std::span<const std::string> arguments, console& out);

} // namespace ov1
