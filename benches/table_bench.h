// Measures the build of the table, and one step of a drag without the editor.
// Plain code is the reference build, pixel by pixel through a virtual call (plain_code.h).
#pragma once

#include "effect/grade_settings.h"
#include "report.h"

namespace ov1::bench
{

/// A grade in which every step of the build acts.
grade_settings everything_active();

/// Builds with all steps active and with the defaults; then builds, publishes, renders a preview and converts it.
void run_table_bench(report& to, int rounds);

} // namespace ov1::bench
