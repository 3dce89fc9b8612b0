// "veridial scope": draws a scope of a picture, graded or not.
#pragma once

#include "command_line/program.h"

namespace ov1
{

/// Nothing is drawn before the output is known to be possible.
exit_code run_scope(std::span<const std::string> arguments, console& out);

} // namespace ov1
