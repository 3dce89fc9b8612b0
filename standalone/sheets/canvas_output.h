// A painted canvas as a picture file.
#pragma once

#include "command_line/exit_code.h"
#include "standalone/sheets/canvas.h"

#include <optional>
#include <string>

namespace ov1
{

class console;
struct run_options;

/// Checks that the canvas may be written to the path. Where there is nothing to draw, because it may not or because an
/// existing file is left, says so and returns the code that the verb ends with.
[[nodiscard]] std::optional<exit_code> plan_canvas(const std::string& path, const run_options& run, console& out);

/// Encodes the canvas as the path's extension asks for, writes it as the options say, and tells what was written or
/// what went wrong.
exit_code write_canvas(const canvas& painted, const std::string& path, const run_options& run, console& out);

} // namespace ov1
