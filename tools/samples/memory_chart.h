// A chart of the colours that people remember: sky, leaves, skin and what lies near them.
#pragma once

#include "shared/argb_float.h"

namespace ov1
{

/// The colour at a place of the chart, x and y in 0..1, display-referred code values. The upper four rows are the
/// twenty-four patches of a colour checker; below it run ramps: pale to deep sky, sky to cloud, dry to lush grass,
/// light to dark skin, and black to white.
argb_float memory_chart(float x, float y);

} // namespace ov1
