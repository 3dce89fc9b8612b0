#include "editor/panel/panel_layout.h"

#include "editor/controls/geometry/pad_geometry.h"

namespace ov1
{

namespace
{

// In points.
constexpr int label_height = 12;
constexpr int gap_above_pad = 7;
constexpr int gap_beside_pad = 2;

/// Half up. For positions within the panel, which are not negative.
int rounded(double v) { return static_cast<int>(v + 0.5); }

double middle_x(const rect& r) { return r.x + r.width / 2.0; }
double middle_y(const rect& r) { return r.y + r.height / 2.0; }

} // namespace

rect place_pad(const control_size& picture, int x_offset, int top)
{
    const int width = rounded(picture.width) + pad_margin_points;
    const int height = rounded(picture.height) + pad_margin_points;
    return {rounded((panel_width - width) / 2.0 + x_offset), top, width, height};
}

rect place_panel_label(const rect& pad)
{
    // The picture's width: the pad's view is larger by the margin.
    const int width = pad.width - pad_margin_points;
    return {rounded(middle_x(pad) - width / 2.0), pad.y - gap_above_pad - label_height, width, label_height};
}

rect place_arc(const rect& pad, const control_size& picture, bool is_left)
{
    const int width = rounded(picture.width), height = rounded(picture.height);
    // The arc's view begins beside the pad's middle and lies over half of it: the arrow's pivot is there.
    const double shift = width / 2.0 + gap_beside_pad;
    const double middle = middle_x(pad) + (is_left ? -shift : shift);
    return {rounded(middle - width / 2.0), rounded(middle_y(pad) - height / 2.0), width, height};
}

control_travel arc_travel(const rect& arc, int inset) { return {arc.y + inset, arc.y + arc.height - inset}; }

rect place_slider(const rect& pad, const control_size& picture, int index)
{
    const int width = rounded(picture.width), height = rounded(picture.height);
    return {rounded(middle_x(pad) - width / 2.0), pad.y + pad.height + index * height, width, height};
}

control_travel slider_travel(const rect& slider, double handle_width)
{
    // The positions are those of the handle's left edge.
    return {slider.x, slider.x + slider.width - rounded(handle_width)};
}

rect place_slider_label(const rect& slider) { return {slider.x, slider.y + slider.height, slider.width, label_height}; }

rect place_preview(int width, int height) { return {0, 0, width - column_width, height}; }

rect place_toolbar(int width) { return {width - column_width, 0, column_width, toolbar_height}; }

rect place_column(int width, int height)
{
    return {width - column_width, toolbar_height, column_width, height - toolbar_height};
}

} // namespace ov1
