// "veridial scope": a picture's values, graded or not, as a scope shows them.
#pragma once

#include "command_line/program.h"

namespace ov1
{

exit_code run_scope(std::span<const std::string> arguments, console& out);

} // namespace ov1
