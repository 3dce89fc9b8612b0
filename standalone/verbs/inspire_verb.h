// "veridial inspire": random looks.
#pragma once

#include "command_line/program.h"

namespace ov1
{

/// Prints looks as presets, writes them to files, or saves them as user presets. The first failure ends the run.
exit_code run_inspire(std::span<const std::string> arguments, console& out);

} // namespace ov1
