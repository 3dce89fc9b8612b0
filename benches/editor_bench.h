// Measures one step of a drag in the editor, from the changed value to drawn pixels.
#pragma once

#include "report.h"

namespace ov1::bench
{

/// Against plain code that draws into the same kind of window; both must draw the same picture.
void run_editor_bench(report& to, int rounds);

} // namespace ov1::bench
