// The places of the panel's controls and of the window's parts, computed from sizes. All in points.
#pragma once

#include "shared/rect.h"

namespace ov1
{

inline constexpr int panel_width = 482;
inline constexpr int panel_height = 760;
inline constexpr int column_width = 494; ///< the panel and its scroll bar
inline constexpr int toolbar_height = 64;
inline constexpr rect inspire_button_place = {198, 202, 86, 63};

struct control_size
{
    double width = 0;
    double height = 0;
};

/// The first and the last position of a handle's left edge, or of an arrow.
struct control_travel
{
    int min = 0;
    int max = 0;

    bool operator==(const control_travel&) const = default;
};

/// The pad's middle lies x_offset to the right of the panel's. Its view is pad_margin_points larger than its picture.
rect place_pad(const control_size& picture, int x_offset, int top);
/// As wide as the pad's picture, 12 high, with a gap of 7 above the pad.
rect place_panel_label(const rect& pad);
/// Centred on the pad, then moved outward by half its width plus 2.
rect place_arc(const rect& pad, const control_size& picture, bool is_left);
/// The arrow's range: the arc less the inset at either end.
control_travel arc_travel(const rect& arc, int inset);
/// Directly below the pad for index 0, directly below the first slider for 1.
rect place_slider(const rect& pad, const control_size& picture, int index);
control_travel slider_travel(const rect& slider, double handle_width);
/// Directly below the slider, as wide as it is.
rect place_slider_label(const rect& slider);

// The parts of a window of this size: preview on the left, toolbar and column on the right.
rect place_preview(int width, int height);
rect place_toolbar(int width);
rect place_column(int width, int height);

} // namespace ov1
