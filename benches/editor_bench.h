// One step of a drag as the editor makes it, from the changed value to drawn pixels.
#pragma once

#include "report.h"

namespace ov1::bench
{

/// Measures it against plain code that ends in the same window, and checks that both draw the same picture.
void run_editor_bench(report& to, int rounds);

} // namespace ov1::bench
