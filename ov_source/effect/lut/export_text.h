// What the texts of the exported formats share.
#pragma once

#include <string>

namespace ov1
{

/// The first line of every exported file, line feed included. Creator and author may be empty.
std::string generated_by_line(const std::string& creator, const std::string& author);

/// The title in a file: its name without folder and without what follows the last dot.
std::string export_title(const std::string& path);

/// The text with control characters and double quotes as blanks, so that a name cannot end its line or its quotes.
std::string one_line(std::string text);

} // namespace ov1
