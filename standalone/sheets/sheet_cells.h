// The cells of a contact sheet, with one grade each.
#pragma once

#include "command_line/grade_request.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ov1
{

/// A picture of the sheet: its caption, and what it is graded with, from the defaults.
struct sheet_cell
{
    std::string name;
    grade_request grade;
};

/// Every look at full and half strength, in rows of look_columns: the four directions of each pad, then skin tone
/// brightness and the saturation of the zones.
std::vector<sheet_cell> look_cells();

/// The ungraded picture, then one cell for each preset. Sets columns so that the sheet has about as many rows.
/// The names are those that "-p" takes; a wrong one fails when it is applied.
std::vector<sheet_cell> preset_cells(const std::vector<std::string>& presets, std::size_t& columns);

/// The number of columns for look_cells.
inline constexpr std::size_t look_columns = 8;

} // namespace ov1
