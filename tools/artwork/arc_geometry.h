// How an arc's picture lies under its arrow.
#pragma once

#include "tools/artwork/pad_geometry.h"

namespace ov1
{

/// The pivot of the arrow is two points beside the pad's middle, on the edge of the arc's view. So wide, the band bows
/// around the wheel some points off its rim, and two arcs beside a pad leave a margin to the panel's edge.
inline constexpr double arc_width_points = 73.0;
inline constexpr double arc_height_points = pad_points; ///< ends level with the wheel
inline constexpr int arc_width_pixels = static_cast<int>(arc_width_points) * picture_scale;
inline constexpr int arc_height_pixels = static_cast<int>(arc_height_points) * picture_scale;

/// From the pivot to the arrow's tip: the width less a point and the arrow's line.
inline constexpr double arrow_points = arc_width_points - 1.0 - 2.0;

/// The band, from the pivot: the tip stands on its inner third, so that the colour it points at stays in sight.
inline constexpr double band_begin_points = arrow_points - 1.5;
inline constexpr double band_end_points = arrow_points + 2.75;
inline constexpr double band_edge_points = 0.5; ///< darker, for colours that are close to the panel's own

/// From the top of the view to the arrow's place at the greatest value, and from the bottom to that at the least.
inline constexpr double arc_inset_points = 4.0;
inline constexpr double spread_arc_inset_points = 9.0; ///< of arcs with two arrows, which need room to part

/// The most that one of two arrows turns away from the value's angle.
inline constexpr double half_spread_degrees = 7.5;

} // namespace ov1
