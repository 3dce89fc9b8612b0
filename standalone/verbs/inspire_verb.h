// "veridial inspire": random looks.
#pragma once

#include "command_line/program.h"

namespace ov1
{

exit_code run_inspire(std::span<const std::string> arguments, console& out);

} // namespace ov1
