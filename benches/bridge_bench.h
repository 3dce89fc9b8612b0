// A frame of a video host through the bridge, beside the bare loop over its rows.
#pragma once

#include "report.h"

#include <cstddef>

namespace ov1::bench
{

/// A frame of halfs. The answers must be the same bits; the bridge may take a quarter more time.
void run_bridge_bench(report& to, std::size_t width, std::size_t height, int rounds);

} // namespace ov1::bench
