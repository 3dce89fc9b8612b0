// "veridial sheet": a contact sheet of one picture with many grades.
#pragma once

#include "command_line/program.h"

namespace ov1
{

/// Without a grade, the sheet shows the looks; with presets, the presets; with other options, before and after.
exit_code run_sheet(std::span<const std::string> arguments, console& out);

} // namespace ov1
