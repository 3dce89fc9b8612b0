// veridial-host render: renders a picture through the effect, in tiles.
#pragma once

#include "command_line/console.h"
#include "command_line/exit_code.h"

#include <span>
#include <string>

namespace ov1
{

/// Returns the program's exit code; failures are printed.
exit_code run_simulator_render(std::span<const std::string> arguments, console& out);

} // namespace ov1
