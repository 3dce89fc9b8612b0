// Parts that the exported text formats have in common.
#pragma once

#include <string>

namespace ov1
{

/// The first line of every exported file, line feed included. Creator and author may be empty.
std::string generated_by_line(const std::string& creator, const std::string& author);

/// The title for a file: its name without the folder and without the part from the last dot on.
std::string export_title(const std::string& path);

/// Replaces control characters and double quotes by blanks, so that a name cannot end its line or its quotes.
std::string one_line(std::string text);

} // namespace ov1
