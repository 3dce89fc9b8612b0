// Where the panel's controls lie, as arithmetic on the sizes of their pictures. All in points.
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

/// The positions between which a handle or an arrow moves.
struct control_travel
{
    int min = 0;
    int max = 0;

    bool operator==(const control_travel&) const = default;
};

/// One point larger than its picture each way, with its middle x_offset right of the panel's.
rect place_pad(const control_size& picture, int x_offset, int top);
/// As wide as the pad's picture, 12 high, 7 above the pad.
rect place_panel_label(const rect& pad);
/// Centred on the pad, then moved outward by half its width and 2.
rect place_arc(const rect& pad, const control_size& picture, bool is_left);
control_travel arc_travel(const rect& arc, int inset);
/// Beneath the pad, the second beneath the first; index is 0 or 1.
rect place_slider(const rect& pad, const control_size& picture, int index);
control_travel slider_travel(const rect& slider, double handle_width);
/// Just beneath the slider.
rect place_slider_label(const rect& slider);

/// The window's parts, for its size in points.
rect place_preview(int width, int height);
rect place_toolbar(int width);
rect place_column(int width, int height);

} // namespace ov1
