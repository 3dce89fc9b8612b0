// Writes a canvas as a picture file.
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

/// Encodes the canvas in the format of the path's extension, writes it as the options say, and reports the output or
/// the failure.
exit_code write_canvas(const canvas& painted, const std::string& path, const run_options& run, console& out);

} // namespace ov1
