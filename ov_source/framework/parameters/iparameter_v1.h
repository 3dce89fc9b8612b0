// A parameter as the rest of the program sees it.
#pragma once

#include "shared/iobject.h"
#include "shared/param_value.h"

#include <string>

namespace ov1
{

/// Bits of iparameter_v1::get_flags().
enum parameter_flags : std::uint32_t
{
    parameter_is_hidden = 1, ///< not shown in the host's inspector
    parameter_is_bypass = 2, ///< switches the whole effect off
};

/// One named, typed, bounded value of the effect. All operations may be called on any thread. Name, uid and flags never
/// change. Nothing throws or reports an error: values that are not accepted are ignored.
class iparameter_v1 : public iobject
{
public:
    virtual std::string get_name() const = 0;
    /// The hash of the name.
    virtual uid get_uid() const = 0;
    virtual param_type get_type() const = 0;

    /// A disabled parameter keeps its value and ignores every set. A change sends event_kind::enabled_changed to the
    /// host.
    virtual void set_enabled(bool enabled) = 0;
    virtual bool get_enabled() = 0;

    /// A copy of the whole record.
    virtual param_value get_param_value() = 0;

    /// Every change of the value goes through this function. v is clamped to the bounds that it carries. It is ignored
    /// if the parameter is disabled or v is not valid; otherwise it replaces the whole record, default and bounds
    /// included. Every accepted set notifies the host (edited if edit is true, else changed); the view is notified only
    /// if the value differs from the previous one.
    virtual void set_param_value(param_value v, bool edit) = 0;

    /// The record before the last accepted set; before the first one unset, unless the class says otherwise.
    virtual param_value get_previous_param_value() = 0;
    /// Whether kind or value differ from the previous record.
    /// Defaults and bounds are not compared.
    virtual bool is_dirty() = 0;

    /// Sets the default with edit false. get_is_reset is true afterwards even if the set was ignored.
    virtual void reset_to_default() = 0;
    /// True from construction or reset until the first accepted value that is not the default.
    virtual bool get_is_reset() = 0;
    /// Whether value and default are equal now.
    virtual bool get_is_default() = 0;

    /// The text of a value of this parameter's kind. precision is the number of significant digits of a continuous
    /// value. Returns false, with out unchanged, if v is not valid here.
    [[nodiscard]] virtual bool get_string_from_value(param_value v, std::string& out, int precision) = 0;

    /// Reads a text into v, a valid record of this parameter's kind such as get_param_value() returns. Returns false,
    /// with v unchanged, if the text cannot be read. Does not set the parameter.
    [[nodiscard]] virtual bool get_value_from_string(std::string text, param_value& v) = 0;

    /// parameter_flags.
    virtual std::uint32_t get_flags() const = 0;
};

} // namespace ov1
