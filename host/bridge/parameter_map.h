// How the effect's parameters appear at the video host: their numbers, their controls and their values.
#pragma once

#include "framework/icomponent_v1.h"
#include "framework/parameters/iparameter_v1.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace ov1
{

/// The host's number of the state; 0 is not used.
inline constexpr int state_host_id = 1;
/// The host's number of the effect's first parameter; the others follow in registration order.
inline constexpr int first_host_id = 2;

constexpr int host_id_of(int place) { return place + first_host_id; }
constexpr int place_of_host_id(int host_id) { return host_id - first_host_id; }

/// Bits of a parameter at the host, as its interface numbers them.
namespace host_flag
{
inline constexpr std::uint32_t not_animatable = 0x1;
inline constexpr std::uint32_t hidden = 0x2;
inline constexpr std::uint32_t custom_ui = 0x40;
inline constexpr std::uint32_t dont_remap_colors = 0x400;
} // namespace host_flag

/// The state is no curve, and its control is a view of ours: the button that opens the editor.
inline constexpr std::uint32_t state_host_flags = host_flag::not_animatable | host_flag::custom_ui;

/// The flags with the hidden bit as given and all others, the host's private ones included, as they were.
constexpr std::uint32_t with_hidden(std::uint32_t flags, bool hidden)
{
    return (flags & ~host_flag::hidden) | (hidden ? host_flag::hidden : 0u);
}

enum class host_control
{
    none, ///< the host is told nothing of it
    float_slider,
    int_slider,
    popup,
    toggle,
    color,
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

/// A value as the host holds it: a float slider's, an integer slider's or a popup's index, a toggle's, a colour's.
using host_value = std::variant<double, int, bool, host_color>;

/// What the host is told of one parameter, once.
struct host_declaration
{
    int id = 0;
    std::string name;
    host_control control = host_control::none;
    std::uint32_t flags = 0;
    host_value default_value = 0.0;
    double min = 0.0; ///< of sliders, as are the next two
    double max = 0.0;
    double delta = 0.0;
    std::vector<std::string> entries; ///< of a popup
};

/// The control of a parameter: of integral ones those with fewer than 16 values are popups of their texts.
host_control host_control_of(const param_value& record);

/// The declaration of the parameter in a place; its present value is the default.
host_declaration declare_parameter(iparameter_v1& parameter, int place);
/// Of all parameters, in registration order, without those that the host is told nothing of.
std::vector<host_declaration> declare_parameters(icomponent_v1& component);

/// The value that the host is to hold for a record; a popup's is counted from the lower bound.
host_value host_value_of(const param_value& record);

/// Puts the host's value into the record, whose bounds stay: floats are narrowed, colours limited to 0..1. A value that
/// is not of the record's control leaves it alone.
void take_host_value(const host_value& value, param_value& record);

/// Whether the host holds another value than the record's; its doubles are compared as floats.
[[nodiscard]] bool host_differs(const host_value& at_host, const param_value& record);

} // namespace ov1
