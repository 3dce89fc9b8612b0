// veridial edit: the editor window over a picture.
#pragma once

#include "command_line/exit_code.h"

#include <functional>
#include <memory>
#include <span>
#include <string>

namespace ov1
{

class console;

/// What makes windows possible for as long as it lives.
using editor_opener = std::function<std::shared_ptr<void>()>;

/// Opens the editor with the grade that is asked for. When it is closed the grade comes out on the standard output, as
/// options that give it again, and the graded picture is written where one is asked for; discarded, nothing is written
/// and the run counts as interrupted.
exit_code run_edit(std::span<const std::string> arguments, console& out, const editor_opener& open_editor);

} // namespace ov1
