// "veridial preset": list, show, save, check and delete presets.
#pragma once

#include "command_line/program.h"

namespace ov1
{

/// Its actions are verbs of their own: list, show, save, load-check and delete.
exit_code run_preset(std::span<const std::string> arguments, console& out);

} // namespace ov1
