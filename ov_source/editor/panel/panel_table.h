// The contents of the editor's panel: eight wheels with their arcs and sliders, their parameters, pictures and texts.
#pragma once

#include <array>
#include <optional>
#include <span>

namespace ov1
{

// Tooltips are localised literals, parameters exact names, pictures file names of the resources.

/// An arc beside a wheel.
struct panel_arc
{
    const char* parameter;
    const char* picture;
    bool is_left; ///< of the wheel: the pivot is the view's right edge
    int inset;    ///< points; see arc_inset_points
    const char* tooltip;
};

/// A slider below a wheel.
struct panel_slider
{
    const char* parameter;
    const char* label;
    const char* tooltip;
};

/// The wheels, in the order of panel_controls::pads.
enum class panel_slot
{
    master,
    shadows,
    mids,
    highlights,
    sky,
    greenery,
    skin,
    film_contrast,
};
inline constexpr std::size_t panel_count = 8;

/// One wheel with everything around it.
struct panel
{
    panel_slot slot;
    const char* label;
    const char* picture;
    const char* angle_parameter;
    const char* radius_parameter;
    const char* tooltip;
    int x_offset; ///< points from the middle of the panel to the middle of the wheel
    int top;      ///< points
    std::span<const panel_arc> arcs;
    std::span<const panel_slider> sliders; ///< smoothness, which sets the first arc's spread, then saturation
};

/// In the order of creation.
std::span<const panel, panel_count> get_panels();

inline constexpr const char* inspire_tooltip = "{en:Generate random look}{de:Zufälligen Look generieren}";

} // namespace ov1
