// "veridial lut": exports a grade as a LUT for other software.
#pragma once

#include "command_line/program.h"

namespace ov1
{

/// The extension chooses the format: .cube, .3dl, or .png for a HaldCLUT.
exit_code run_lut(std::span<const std::string> arguments, console& out);

} // namespace ov1
