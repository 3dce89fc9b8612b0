// What a contact sheet shows: one grade a cell.
#pragma once

#include "command_line/grade_request.h"

#include <cstddef>
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

/// The picture as it is, then through each preset; columns that make the sheet about as wide as high.
std::vector<sheet_cell> preset_cells(const std::vector<std::string>& presets, std::size_t& columns);

/// How many of look_cells stand in a row.
inline constexpr std::size_t look_columns = 8;

} // namespace ov1
