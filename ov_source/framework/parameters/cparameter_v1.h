// The base class of all parameters: the record, the notification of changes, and the texts.
#pragma once

#include "framework/parameters/iparameter_v1.h"

#include <memory>
#include <mutex>

namespace ov1
{

class icomponent_v1;
class ihost_v1;

/// Owned by a shared pointer, which it passes to the view. Its record is guarded by the component's record lock, which
/// is never held while the host or the view is called.
class cparameter_v1 : public iparameter_v1, public std::enable_shared_from_this<cparameter_v1>
{
public:
    static constexpr uid ifc_id = make_uid("cparameter_v1");

    /// A record of the given kind, otherwise zero; the previous record is unset. Events go to the host that the
    /// component has now: a parameter created before the component is initialized never notifies a host.
    cparameter_v1(std::weak_ptr<icomponent_v1> component, std::string name, param_type type);

    bool query_interface(const std::string& name, iobject** out) override;
    std::string get_name() const override;
    uid get_uid() const override;
    param_type get_type() const override;
    void set_enabled(bool enabled) override;
    bool get_enabled() override;
    param_value get_param_value() override;
    void set_param_value(param_value v, bool edit) override;
    param_value get_previous_param_value() override;
    bool is_dirty() override;
    void reset_to_default() override;
    bool get_is_reset() override;
    bool get_is_default() override;
    [[nodiscard]] bool get_string_from_value(param_value v, std::string& out, int precision) override;
    [[nodiscard]] bool get_value_from_string(std::string text, param_value& v) override;
    std::uint32_t get_flags() const override;

    /// The current record, for a caller that holds the component's record lock and can thus read several parameters at
    /// one moment.
    /// The reference changes with the next set.
    const param_value& record_under_lock() const { return value; }

protected:
    /// Starts with the given record, clamped to its bounds; the previous record equals it.
    cparameter_v1(std::weak_ptr<icomponent_v1> component, std::string name, const param_value& initial);

private:
    /// What became of a record that was to be set.
    enum class outcome
    {
        /// Ignored: the parameter is disabled or the record is not valid.
        dropped,
        /// Stored, with the same kind and value as before.
        unchanged,
        /// Stored, with another kind or value.
        changed,
    };
    outcome take(param_value v);
    void notify_view(bool edit);

    const std::weak_ptr<icomponent_v1> component;
    const std::string name;
    const uid id;
    const std::shared_ptr<std::mutex> lock; ///< guards the next four members
    /// The present record.
    param_value value;
    /// The record before the last accepted set.
    param_value previous;
    bool enabled = true;
    bool is_reset = true;
    /// The host at construction; it may be destroyed first.
    const std::weak_ptr<ihost_v1> host;
};

} // namespace ov1
