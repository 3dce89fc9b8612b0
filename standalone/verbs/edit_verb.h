// "veridial edit": the editor on a picture or a clip.
#pragma once

#include "command_line/exit_code.h"

#include <functional>
#include <memory>
#include <span>
#include <string>

namespace ov1
{

class console;

/// Returns an object that keeps the window toolkit running during its lifetime.
using editor_opener = std::function<std::shared_ptr<void>()>;

/// Opens the editor with the grade of the command line. When the editor is closed, prints its grade as options for
/// another command, and writes the graded output if there is one. If the user discards the grade, prints and writes
/// nothing and returns exit_code::interrupted.
exit_code run_edit(std::span<const std::string> arguments, console& out, const editor_opener& open_editor);

} // namespace ov1
