#include "tools/looks/report.h"

#include <cmath>
#include <fmt/format.h>

namespace ov1
{

namespace
{

/// The allowed range of a measure in as few characters as possible.
std::string allowed(const measured& row)
{
    if (std::isinf(row.most))
        return fmt::format(">= {}", row.least);
    if (row.least == row.most)
        return fmt::format("= {}", row.least);
    return fmt::format("{} .. {}", row.least, row.most);
}

} // namespace

std::string report_text(const std::vector<measured>& rows)
{
    std::string text = fmt::format("{:>2}  {:<58} {:>10}  {:<12}\n", "#", "measure", "value", "allowed");
    for (const measured& row : rows)
        text += fmt::format("{:>2}  {:<58} {:>10.4f}  {:<12} {}\n", row.number, row.what, row.value, allowed(row),
                            row.met() ? "met" : "MISSED");
    return text;
}

} // namespace ov1
