// "veridial sheet": one picture through many grades, side by side.
#pragma once

#include "command_line/program.h"

namespace ov1
{

exit_code run_sheet(std::span<const std::string> arguments, console& out);

} // namespace ov1
