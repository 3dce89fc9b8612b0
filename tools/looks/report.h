// The measures as a table to read.
#pragma once

#include "tools/looks/measures.h"

#include <string>
#include <vector>

namespace ov1
{

/// One line for each row: number, subject, value, what is allowed, and whether it is met.
std::string report_text(const std::vector<measured>& rows);

} // namespace ov1
