// The measures as a text table.
#pragma once

#include "tools/looks/measures.h"

#include <string>
#include <vector>

namespace ov1
{

/// One line per row: number, subject, value, allowed range, and whether it is met.
std::string report_text(const std::vector<measured>& rows);

} // namespace ov1
