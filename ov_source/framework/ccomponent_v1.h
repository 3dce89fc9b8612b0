// The base class of effects: everything except their parameters, pixels and editor.
#pragma once

#include "framework/icomponent_v1.h"

#include <atomic>
#include <span>

namespace ov1
{

class cparameter_v1;

/// An effect overrides init_component, create_view, notify, handle_unknown_parameter, render_pixel and whatever else it
/// does differently. Must be created with std::make_shared.
class ccomponent_v1 : public icomponent_v1, public std::enable_shared_from_this<ccomponent_v1>
{
public:
    static constexpr uid ifc_id = make_uid("ccomponent_v1");

    ccomponent_v1();

    bool query_interface(const std::string& name, iobject** out) override;
    std::shared_ptr<iview_v1> create_view() override;
    std::string get_name() const override;
    std::string get_vendor() const override;
    std::string get_com_identifier() const override;
    version get_version() const override;
    std::shared_ptr<ihost_v1> get_host() override;
    void initialize(std::shared_ptr<ihost_v1> host) override;
    void terminate() override;
    void init_component() override;
    bool is_state_rejected(std::vector<std::uint8_t>& blob, bool edit, std::string& message) override;
    bool set_state(std::vector<std::uint8_t>& blob, bool edit) override;
    std::vector<std::uint8_t> get_state() override;
    std::size_t get_state_size() const override;
    void undo() override;
    void redo() override;
    void save_cancel_state() override;
    int save_state(bool advance) override;
    void jump_undo_stack(int position) override;
    void flush_state_stack() override;
    int get_parameter_count() const override;
    std::shared_ptr<iparameter_v1> get_parameter(int index) override;
    std::shared_ptr<iparameter_v1> get_parameter(uid id) override;
    std::shared_ptr<iparameter_v1> get_parameter(std::string name) override;
    std::shared_ptr<iview_v1> get_view() override;
    void notify(event e) override;
    void render_pixel(std::size_t x, std::size_t y, const argb_float& in, argb_float& out) override;
    void open_manual() override;
    void idle() override;
    bool has_bypass() override;
    void set_bypass(bool bypass) override;
    bool get_bypass() override;
    void reset_to_default() override;
    void cancel_effect() override;
    void handle_unknown_parameter(uid id, const param_value& value, bool edit) override;
    void render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count) override;
    std::shared_ptr<const row_renderer> get_row_renderer() override;
    std::shared_ptr<std::mutex> get_record_lock() const override;
    void begin_restore() override;
    void end_restore() override;
    undo_range get_undo_range() const override;
    std::vector<std::uint8_t> get_undo_state(int position) const override;

    /// Whether a restore guard exists, on any thread.
    bool is_restoring() const { return open_restores > 0; }

protected:
    /// Called when the outermost restore begins, before any value is set.
    virtual void restore_started() {}

    /// Appends a parameter; its place is its place in every stored state. The first of several with one uid is the one
    /// that is found.
    void register_parameter(std::shared_ptr<cparameter_v1> parameter);
    /// Replaces what get_view returns.
    void set_view(std::shared_ptr<iview_v1> view);
    /// For parameters and editor, which refer to the component weakly.
    std::weak_ptr<icomponent_v1> get_self() { return weak_from_this(); }

    /// Runs f under the record lock, so that no record changes meanwhile: see cparameter_v1::record_under_lock. f must
    /// not call the host, the view or a parameter.
    template <typename F>
    auto with_records_locked(F&& f) const
    {
        const std::scoped_lock guard(*record_lock);
        return f();
    }

private:
    /// What never changes of a parameter is kept beside it, so that a search calls nothing while it holds the lock.
    struct registered_parameter
    {
        std::shared_ptr<cparameter_v1> parameter;
        uid id = invalid_id;
        std::uint32_t flags = 0;
    };

    /// The first parameter that the predicate accepts; null when there is none.
    /// Takes the record lock for the search.
    template <typename predicate>
    std::shared_ptr<iparameter_v1> find_parameter(const predicate& is_wanted) const;
    std::shared_ptr<iparameter_v1> find_bypass() const;
    /// Sets every parameter that the state names. False, with nothing changed, if it is not a state.
    bool restore(std::span<const std::uint8_t> state, bool edit);
    /// Both are false without a view.
    bool view_is_open();
    bool is_in_gesture();

    /// Shared with the parameters, which may outlive the component.
    const std::shared_ptr<std::mutex> record_lock;
    /// host, view and parameters are guarded by record_lock.
    std::shared_ptr<ihost_v1> host;
    std::shared_ptr<iview_v1> view;
    std::vector<registered_parameter> parameters;

    /// From here to cancel_state: editor's thread only.
    undo_ring undo_states;
    bool in_undo = false;
    bool in_redo = false;
    /// The state after initialize.
    std::vector<std::uint8_t> default_state;
    /// The state of save_cancel_state; empty before it.
    std::vector<std::uint8_t> cancel_state;
    std::atomic<int> open_restores = 0;
};

} // namespace ov1
