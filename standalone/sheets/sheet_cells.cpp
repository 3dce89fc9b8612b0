#include "standalone/sheets/sheet_cells.h"

#include <array>
#include <cmath>

namespace ov1
{

namespace
{

/// A direction of a pad, at the angle in degrees at which this look is strongest.
struct pad_look
{
    const char* name;
    std::optional<std::string> grade_request::* pad;
    int angle;
};

constexpr std::array<pad_look, 16> pad_looks{{
    {"sky: dark turquoise", &grade_request::sky, 0},
    {"sky: deeper blue", &grade_request::sky, 90},
    {"sky: bright purple", &grade_request::sky, 180},
    {"sky: paler", &grade_request::sky, 270},
    {"greenery: yellow", &grade_request::greenery, 0},
    {"greenery: bright", &grade_request::greenery, 90},
    {"greenery: irish", &grade_request::greenery, 180},
    {"greenery: olive", &grade_request::greenery, 270},
    {"film: highlights up", &grade_request::film, 0},
    {"film: flat", &grade_request::film, 90},
    {"film: shadows down", &grade_request::film, 180},
    {"film: contrast", &grade_request::film, 270},
    {"skin: more colour", &grade_request::skin, 0},
    {"skin: yellowish", &grade_request::skin, 90},
    {"skin: paler", &grade_request::skin, 180},
    {"skin: reddened", &grade_request::skin, 270},
}};

/// One end of a slider; the sign chooses which.
struct slider_look
{
    const char* name;
    const char* parameter;
    int sign;
};

constexpr std::array<slider_look, 8> slider_looks{{
    {"skin: lighter", "Skin Tone Brightness", 1},
    {"skin: darker", "Skin Tone Brightness", -1},
    {"shadows: saturated", "Shadows Saturation", 1},
    {"shadows: muted", "Shadows Saturation", -1},
    {"mids: saturated", "Mids Saturation", 1},
    {"mids: muted", "Mids Saturation", -1},
    {"highlights: saturated", "Highlights Saturation", 1},
    {"highlights: muted", "Highlights Saturation", -1},
}};

/// The caption: "sky: paler 50 %".
std::string named(const char* name, int strength) { return std::string(name) + ' ' + std::to_string(strength) + " %"; }

} // namespace

std::vector<sheet_cell> look_cells()
{
    std::vector<sheet_cell> cells;
    for (const pad_look& look : pad_looks)
        for (const int strength : {100, 50})
        {
            sheet_cell cell{named(look.name, strength), {}};
            cell.grade.*look.pad = std::to_string(look.angle) + ',' + std::to_string(strength);
            cells.push_back(std::move(cell));
        }
    for (const slider_look& look : slider_looks)
        for (const int strength : {100, 50})
        {
            sheet_cell cell{named(look.name, strength), {}};
            cell.grade.settings.push_back(std::string(look.parameter) + '=' + std::to_string(look.sign * strength));
            cells.push_back(std::move(cell));
        }
    return cells;
}

std::vector<sheet_cell> preset_cells(const std::vector<std::string>& presets, std::size_t& columns)
{
    std::vector<sheet_cell> cells(1);
    cells[0].name = "before";
    cells[0].grade.bypass = true;
    for (const std::string& preset : presets)
    {
        cells.push_back({preset, {}});
        cells.back().grade.presets.push_back(preset);
    }
    // The smallest square that holds all cells.
    columns = static_cast<std::size_t>(std::ceil(std::sqrt(static_cast<double>(cells.size()))));
    return cells;
}

} // namespace ov1
