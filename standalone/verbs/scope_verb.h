// "veridial scope": draws a scope of a picture, graded or not.
#pragma once

#include "command_line/program.h"

namespace ov1
{

exit_code run_scope(std::span<const std::string> arguments, console& out);

} // namespace ov1
