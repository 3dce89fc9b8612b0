// How the effect's parameters appear in the video host: their ids, their controls and their values.
#pragma once

#include "framework/icomponent_v1.h"
#include "framework/parameters/iparameter_v1.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace ov1
{

/// Host id of the state; 0 is not used.
inline constexpr int state_host_id = 1;
/// Host id of the effect's first parameter; the others follow in registration order.
inline constexpr int first_host_id = 2;

/// From the index of a parameter in registration order to its host id, and back. Documents contain the ids.
constexpr int host_id_of(int index) { return index + first_host_id; }
constexpr int index_of_host_id(int host_id) { return host_id - first_host_id; }

/// Bits of a parameter's flags in the host's interface.
namespace host_flag
{
inline constexpr std::uint32_t not_animatable = 0x1;      ///< has no keyframes
inline constexpr std::uint32_t hidden = 0x2;              ///< not shown in the inspector
inline constexpr std::uint32_t custom_ui = 0x40;          ///< the effect makes the view
inline constexpr std::uint32_t dont_remap_colors = 0x400; ///< without the host's colour management
} // namespace host_flag

/// The state cannot be animated, and its control is our own view: the button that opens the editor.
inline constexpr std::uint32_t state_host_flags = host_flag::not_animatable | host_flag::custom_ui;

/// Sets or clears the hidden bit. All other bits stay, including private ones of the host.
constexpr std::uint32_t with_hidden(std::uint32_t flags, bool hidden)
{
    return (flags & ~host_flag::hidden) | (hidden ? host_flag::hidden : 0u);
}

/// The kinds of control that the host's inspector has.
enum class host_control
{
    none,         ///< not declared to the host
    float_slider, ///< of a continuous parameter
    int_slider,   ///< of an integral one with 16 values or more
    popup,        ///< of an integral one with fewer values
    toggle,       ///< of a boolean
    color,        ///< of a colour with alpha
};

/// A colour in the host's order and precision.
struct host_color
{
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 0.0;

    bool operator==(const host_color&) const = default;
};

/// A value in the host's representation: of a float slider, of an integer slider or a popup (its index), of a toggle,
/// of a colour.
using host_value = std::variant<double, int, bool, host_color>;

/// Everything the host needs to create the control of one parameter.
struct host_declaration
{
    int id = 0;
    std::string name;
    host_control control = host_control::none;
    std::uint32_t flags = 0;
    host_value default_value = 0.0;
    double min = 0.0;                 ///< of sliders
    double max = 0.0;                 ///< of sliders
    double delta = 0.0;               ///< of sliders: the step of a drag
    std::vector<std::string> entries; ///< of a popup
};

/// The control that shows a parameter. An integral parameter with fewer than 16 values is a popup, else a slider.
host_control host_control_of(const param_value& record);

/// The declaration of the parameter at an index. Its current value becomes the host's default.
host_declaration declare_parameter(iparameter_v1& parameter, int index);
/// The declarations of all parameters that have a control, in registration order.
std::vector<host_declaration> declare_parameters(icomponent_v1& component);

/// The record's value in the host's representation. A popup's index is counted from the lower bound.
host_value host_value_of(const param_value& record);

/// Puts the host's value into the record and keeps the record's bounds. Doubles are narrowed to float, colour channels
/// are limited to 0..1. A value of another kind than the record's control leaves the record unchanged.
void take_host_value(const host_value& value, param_value& record);

/// Whether the host's value differs from the record's. The host's doubles are compared as floats.
[[nodiscard]] bool host_differs(const host_value& at_host, const param_value& record);

} // namespace ov1
