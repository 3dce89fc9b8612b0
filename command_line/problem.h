// One thing that went wrong, and the line that tells it.
#pragma once

#include "command_line/exit_code.h"

#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

/// Texts in lower case and without a full stop. Subject and hint may be empty.
struct problem
{
    exit_code code = exit_code::usage;
    std::string subject; ///< a file, parameter or option, as the user wrote it
    std::string reason;
    std::string hint; ///< what to do about it
};

/// "subject": reason (hint), on one line whatever the texts hold.
std::string problem_line(const problem& p);

/// A text in double quotes on one line: control characters, and bytes that are no UTF-8, appear as \xNN.
std::string in_quotes(std::string_view text);

/// The length of the UTF-8 sequence at the start of a text, 0 if it begins with none (RFC 3629, section 4).
std::size_t utf8_length(std::string_view text);

} // namespace ov1
