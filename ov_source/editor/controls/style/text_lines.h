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

/// Breaks UTF-8 at blanks and line feeds into lines no wider than the limit. A single word that is wider is cut between
/// characters; a line of one character may be wider than the limit. Blanks at a break are dropped. An empty paragraph
/// gives an empty line.
std::vector<std::string> text_lines(std::string_view text, double limit, const line_width& width);

} // namespace ov1
