// veridial-host open: the inspector with the effect's button, over a picture.
#pragma once

#include "command_line/console.h"
#include "command_line/exit_code.h"

#include <span>
#include <string>

namespace ov1
{

/// The editor must be installed by then, if there is one.
exit_code run_simulator_open(std::span<const std::string> arguments, console& out);

} // namespace ov1
