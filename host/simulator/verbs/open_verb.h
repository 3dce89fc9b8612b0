// veridial-host open: shows the inspector, whose button opens the editor on a picture.
#pragma once

#include "command_line/console.h"
#include "command_line/exit_code.h"

#include <span>
#include <string>

namespace ov1
{

/// Returns the program's exit code when the window is closed; failures are printed. Main thread.
/// Install the editor first; without it the button does nothing.
exit_code run_simulator_open(std::span<const std::string> arguments, console& out);

} // namespace ov1
