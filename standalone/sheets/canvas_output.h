// Writes a canvas as a picture file.
#pragma once

#include "command_line/exit_code.h"
#include "standalone/sheets/canvas.h"

#include <string>

namespace ov1
{

class console;
struct run_options;

/// Encodes the canvas in the format of the path's extension, writes it as the options say, and reports the output or
/// the failure.
/// A dry run encodes the canvas too, so that an unsupported format is found. plan_single_output has checked the path.
exit_code write_canvas(const canvas& painted, const std::string& path, const run_options& run, console& out);

} // namespace ov1
