// What the rest of the program knows of a parameter.
#pragma once

#include "shared/iobject.h"
#include "shared/param_value.h"

#include <string>

namespace ov1
{

/// Bits of iparameter_v1::get_flags().
enum parameter_flags : std::uint32_t
{
    parameter_is_hidden = 1, ///< kept out of the host's inspector
    parameter_is_bypass = 2, ///< switches the whole effect off
};

/// One named, typed, bounded value of the effect. All operations may be called from any thread. Name, uid and flags
/// are fixed for life. Nothing throws and nothing reports an error: what cannot be taken is dropped.
class iparameter_v1 : public iobject
{
public:
    virtual std::string get_name() const = 0;
    /// The hash of the name.
    virtual uid get_uid() const = 0;
    virtual param_type get_type() const = 0;

    /// A disabled parameter keeps its value and drops every set. A change is told to the host as
    /// event_kind::enabled_changed.
    virtual void set_enabled(bool enabled) = 0;
    virtual bool get_enabled() = 0;

    /// A copy of the whole record.
    virtual param_value get_param_value() = 0;

    /// The single path of every change. The candidate is brought within the bounds that it carries; it is dropped when
    /// the parameter is disabled or the candidate is not valid, else it replaces the whole record, default and bounds
    /// included. The host is told of every accepted set (edited when edit is true, changed when not), the view only
    /// when the value differs from the one before.
    virtual void set_param_value(param_value v, bool edit) = 0;

    /// The record before the last accepted set; unset until there was one, unless the class says otherwise.
    virtual param_value get_previous_param_value() = 0;
    /// Whether the value differs from the previous one in kind or, compared as its kind, in value.
    virtual bool is_dirty() = 0;

    /// Sets the default as a change of the program, and notes the reset even where the set was dropped.
    virtual void reset_to_default() = 0;
    /// True from construction or reset until the first accepted value that is not the default.
    virtual bool get_is_reset() = 0;
    virtual bool get_is_default() = 0;

    /// The text of a value of this parameter's kind. precision is the number of significant digits of a continuous
    /// value. Returns false and leaves out alone when v is not valid here.
    [[nodiscard]] virtual bool get_string_from_value(param_value v, std::string& out, int precision) = 0;

    /// Reads a text into v, which arrives as a valid record of this parameter's kind, as get_param_value() gives it.
    /// Returns false and leaves v alone when the text cannot be read. Sets nothing: that is the caller's next step.
    [[nodiscard]] virtual bool get_value_from_string(std::string text, param_value& v) = 0;

    /// parameter_flags.
    virtual std::uint32_t get_flags() const = 0;
};

} // namespace ov1
