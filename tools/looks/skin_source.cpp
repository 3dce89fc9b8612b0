#include "tools/looks/skin_source.h"

#include <fmt/format.h>
#include <iterator>

namespace ov1
{

namespace
{

// {:#} prints the fewest digits that are read back as the same float, always with a point, which the suffix f needs.
constexpr std::size_t numbers_per_line = 8;

void append_table(std::string& text, const look_row& row, const look_table& table)
{
    auto out = std::back_inserter(text);
    fmt::format_to(out, "const skin_table_data {}{{{{\n", row.name);
    for (const argb_float& e : table.get_entries())
        fmt::format_to(out, "{{{:#}f, {:#}f, {:#}f, {:#}f}},\n", e.a, e.r, e.g, e.b);
    text += "}};\n\n";
}

void append_mask(std::string& text, std::string_view name, const mask_weights& weights)
{
    auto out = std::back_inserter(text);
    fmt::format_to(out, "const lut_mask<lut_edge> {}{{{{", name);
    for (std::size_t i = 0; i < weights.size(); ++i)
        fmt::format_to(out, "{}{:#}f,", i % numbers_per_line == 0 ? "\n" : " ", weights[i]);
    text += "\n}};\n";
}

} // namespace

std::string skin_source(const look_data& data)
{
    std::string text = "// Made by make_looks: do not edit.\n"
                       "#include \"effect/skin_data.h\"\n\n"
                       "namespace ov1\n{\n\n";
    for (const look_row& row : look_rows)
        if (static_cast<std::size_t>(row.id) >= resource_count)
            append_table(text, row, data[row.id]);
    text += "namespace lut_masks\n{\n\n";
    append_mask(text, "select_skintones", data.select_skintones);
    append_mask(text, "select_skintones_extreme", data.select_skintones_extreme);
    text += "\n} // namespace lut_masks\n\n} // namespace ov1\n";
    return text;
}

} // namespace ov1
