// "veridial params": the parameters, their ranges and defaults.
#pragma once

#include "command_line/program.h"

namespace ov1
{

/// Prints all parameters in registration order, as a table or as JSON.
exit_code run_params(std::span<const std::string> arguments, console& out);

} // namespace ov1
