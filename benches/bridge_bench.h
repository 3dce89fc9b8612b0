// Measures a frame of a video host through the bridge against the plain loop over its rows.
#pragma once

#include "report.h"

#include <cstddef>

namespace ov1::bench
{

/// Renders a frame of halfs both ways. The results must have the same bits; the bridge may take a quarter more time.
void run_bridge_bench(report& to, std::size_t width, std::size_t height, int rounds);

} // namespace ov1::bench
