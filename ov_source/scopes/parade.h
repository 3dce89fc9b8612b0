// The parade: the waveforms of red, green and blue side by side.
#pragma once

#include "scopes/waveform.h"

#include <array>

namespace ov1
{

/// Counts of the three channels, all with the same number of columns.
/// Red, green, blue.
using parade_counts = std::array<waveform_counts, 3>;

/// Divides an area into the parts of the three waveforms, from left to right, with gaps between them.
/// Their widths differ by at most one pixel and are 0 where the area is too narrow.
std::array<rect, 3> parade_areas(const rect& area, int line_width);

/// Like draw_waveform for each channel, in its colour.
/// Parts that are too small for a waveform stay empty.
void draw_parade(const parade_counts& counts, const rect& area, int line_width, scope_picture& picture);

/// Those of the left waveform.
scope_labels parade_labels(const rect& area, int line_width);

} // namespace ov1
