// A painted canvas as a picture file.
#pragma once

#include "command_line/exit_code.h"
#include "standalone/sheets/canvas.h"

#include <string>

namespace ov1
{

class console;
struct run_options;

/// Where the canvas will be written. False when nothing is to be drawn: the output cannot be, or it is left as it is;
/// that has been told, and the code is the program's.
[[nodiscard]] bool plan_canvas(std::string& path, const run_options& run, console& out, exit_code& code);

/// Encodes the canvas as the path's extension asks for, writes it as the options say, and tells what was written or
/// what went wrong.
exit_code write_canvas(const canvas& painted, const std::string& path, const run_options& run, console& out);

} // namespace ov1
