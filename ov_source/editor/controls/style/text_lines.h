// Text broken into lines of a limited width.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

/// Width in points of a line of UTF-8.
using line_width = std::function<double(std::string_view)>;

/// Breaks UTF-8 at blanks and line feeds, so that no line is wider than the limit; a word that is wider by itself is
/// cut between its characters. Blanks at a break are dropped; every line has at least one character, except where line
/// feeds follow one another.
std::vector<std::string> text_lines(std::string_view text, double limit, const line_width& width);

} // namespace ov1
