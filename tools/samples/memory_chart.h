// A chart of memory colours: sky, leaves, skin and their neighbours.
#pragma once

#include "shared/argb_float.h"

namespace ov1
{

/// The colour at a point of the chart, x and y in 0..1, as display-referred code values. The upper four rows are the
/// twenty-four patches of a colour checker. Below are ramps: pale to deep sky, sky to cloud, dry to lush grass, light
/// to dark skin, and black to white.
argb_float memory_chart(float x, float y);

} // namespace ov1
