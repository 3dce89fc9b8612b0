// What a contact sheet shows: one grade a cell.
#pragma once

#include "command_line/grade_request.h"

#include <string>
#include <vector>

namespace ov1
{

struct sheet_cell
{
    std::string name;
    grade_request grade;
};

/// Every look at full strength and at half, eight to a row: the four pads' directions, then skin brightness and the
/// zones' saturation.
std::vector<sheet_cell> look_cells();

/// How many of look_cells stand in a row.
inline constexpr std::size_t look_columns = 8;

} // namespace ov1
