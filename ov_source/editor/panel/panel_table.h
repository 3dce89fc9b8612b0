// What stands on the editor's panel: eight wheels with their arcs and sliders, the parameters behind them, their texts.
#pragma once

#include <array>
#include <optional>
#include <span>

namespace ov1
{

/// A control beside or beneath a wheel. Texts are localised literals, parameters exact names.
struct panel_arc
{
    const char* parameter;
    const char* picture;
    bool is_left; ///< its pivot is its right edge
    int inset;    ///< points at either end that the arrow does not reach
    const char* tooltip;
};

struct panel_slider
{
    const char* parameter;
    const char* label;
    const char* tooltip;
};

/// The order of the wheels' fixed slots.
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
    std::span<const panel_slider> sliders; ///< smoothness, whose value spreads the first arc's arrows, and saturation
};

/// In the order in which the controls are made.
std::span<const panel, panel_count> get_panels();

inline constexpr const char* inspire_tooltip = "{en:Generate random look}{de:Zufälligen Look generieren}";

} // namespace ov1
