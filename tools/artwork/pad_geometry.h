// How a round pad's picture lies under its handle.
#pragma once

namespace ov1
{

/// The pads' pictures are squares of this side, the wheel being as wide. With it pads, arcs, labels and sliders fit the
/// panel's columns, 150 points apart, and the last row ends as far from the panel's edge as the first begins.
inline constexpr double pad_points = 120.0;

/// Pixels to a point in all pictures of the editor.
inline constexpr int picture_scale = 2;
inline constexpr int pad_pixels = static_cast<int>(pad_points) * picture_scale;

inline constexpr double handle_points = 12.0; ///< the handle's diameter
inline constexpr double handle_frame_points = 2.5;

/// From the middle to the handle's centre at strength 100: the handle stays within the view, which is a point wider
/// than the picture, and may stand over its rim by half its frame.
inline constexpr double full_strength_points = []
{
    constexpr double view = pad_points + 1.0;
    return (view - handle_points) / 2.0 * (view - (handle_points - handle_frame_points) / 2.0) / view;
}();

} // namespace ov1
