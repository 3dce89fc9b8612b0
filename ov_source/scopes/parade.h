// The parade: the waveforms of red, green and blue side by side.
#pragma once

#include "scopes/waveform.h"

#include <array>

namespace ov1
{

/// Red, green, blue.
using parade_counts = std::array<waveform_counts, 3>;

/// The parts of an area for the three waveforms, from the left, with a gap between them; together as wide as the area.
std::array<rect, 3> parade_areas(const rect& area, int line_width);

/// As draw_waveform, each in the colour of its channel.
void draw_parade(const parade_counts& counts, const rect& area, int line_width, scope_picture& picture);

/// The waveform's, at the left one alone.
scope_labels parade_labels(const rect& area, int line_width);

} // namespace ov1
