// The effect as hosts, editors and presets see it: parameters, state, undo, rendering.
#pragma once

#include "framework/undo_ring.h"
#include "shared/argb_float.h"
#include "shared/event.h"
#include "shared/iobject.h"
#include "shared/param_value.h"
#include "shared/version.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace ov1
{

class ihost_v1;
class iparameter_v1;
class iview_v1;
class row_renderer;

/// Owned by a shared pointer. Parameters, state and rendering may be used on any thread; view, undo ring, saved states,
/// initialize and terminate only on the editor's thread. No lock is held while the host, the view or a hook of the
/// effect is called.
class icomponent_v1 : public iobject
{
public:
    /// Creates the editor and keeps it as the view; null if there is none.
    virtual std::shared_ptr<iview_v1> create_view() = 0;

    /// Name and vendor as users see them.
    virtual std::string get_name() const = 0;
    virtual std::string get_vendor() const = 0;
    /// Reverse domain notation: com.vendor.product
    virtual std::string get_com_identifier() const = 0;
    virtual version get_version() const = 0;

    /// Null before initialize and after terminate.
    virtual std::shared_ptr<ihost_v1> get_host() = 0;

    /// Keeps the host, creates the parameters, sends event_kind::initialized to the host and keeps the state as the
    /// default. A null host is ignored. Call it at most once before terminate.
    virtual void initialize(std::shared_ptr<ihost_v1> host) = 0;
    /// Releases the view, sends event_kind::terminated to the host, then releases parameters and host. Does nothing
    /// without a host.
    virtual void terminate() = 0;
    /// Creates and registers the parameters; called by initialize.
    virtual void init_component() = 0;

    /// Whether the effect rejects a state; message becomes the reason, or empty if the state is accepted.
    virtual bool is_state_rejected(std::vector<std::uint8_t>& blob, bool edit, std::string& message) = 0;

    /// Sets every parameter that the state names, in the order of the state, under a restore guard. A record that names
    /// no parameter goes to handle_unknown_parameter. Returns false, with nothing changed, if there are no parameters
    /// or the bytes are not a state. Bytes after the last record are ignored, and an incomplete record ends the
    /// restore: callers with bytes from outside call check_state_blob (state_blob.h) first.
    virtual bool set_state(std::vector<std::uint8_t>& blob, bool edit) = 0;
    /// All parameters in registration order, as they are at one moment, in the format of state_blob.h; empty if there
    /// are none.
    virtual std::vector<std::uint8_t> get_state() = 0;
    /// The size of the present state in bytes; 8 if there are no parameters.
    virtual std::size_t get_state_size() const = 0;

    /// Goes one step back or forward, or to a position of the undo ring. Does nothing at the ends and during a gesture.
    virtual void undo() = 0;
    virtual void redo() = 0;
    /// Saves the present state for cancel_effect.
    virtual void save_cancel_state() = 0;
    /// Stores the state in the current slot if the view is open and no undo or redo is running. With advance, the slot
    /// is committed and later ones are discarded. Returns the previous position.
    virtual int save_state(bool advance) = 0;
    virtual void jump_undo_stack(int position) = 0;
    virtual void flush_state_stack() = 0;

    virtual int get_parameter_count() const = 0;
    /// By index in registration order, by uid or by exact name; null if there is none.
    /// The caller shares the parameter, which may outlive the component.
    virtual std::shared_ptr<iparameter_v1> get_parameter(int index) = 0;
    virtual std::shared_ptr<iparameter_v1> get_parameter(uid id) = 0;
    virtual std::shared_ptr<iparameter_v1> get_parameter(std::string name) = 0;

    /// The view that create_view created; null if there is none.
    virtual std::shared_ptr<iview_v1> get_view() = 0;

    /// Receives every event that was sent to the host. event_kind::render_begins updates the table before it returns.
    virtual void notify(event e) = 0;

    /// Renders one pixel. Any thread.
    virtual void render_pixel(std::size_t x, std::size_t y, const argb_float& in, argb_float& out) = 0;

    /// Opens the manual in the user's browser: manual/index.html of the resources, or the address set at build time.
    virtual void open_manual() = 0;
    /// Called by the host from time to time.
    virtual void idle() = 0;

    /// The bypass is the first parameter with parameter_is_bypass. Without one, set does nothing and get returns false.
    virtual bool has_bypass() = 0;
    virtual void set_bypass(bool bypass) = 0;
    virtual bool get_bypass() = 0;

    /// Restores the state that initialize ended with.
    virtual void reset_to_default() = 0;
    /// Sends event_kind::cancelled to the host and restores the state of save_cancel_state.
    virtual void cancel_effect() = 0;

    /// Called when a restored state or a preset names a parameter that does not exist. value is the stored record.
    virtual void handle_unknown_parameter(uid id, const param_value& value, bool edit) = 0;

    /// Renders count pixels of row y, with x counted from 0. in and out may be the same. Any thread. For whole tiles
    /// use get_row_renderer.
    virtual void render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count) = 0;

    /// A renderer that keeps the present table, whatever is published later. Take one for each tile, after
    /// event_kind::render_begins. Never null.
    virtual std::shared_ptr<const row_renderer> get_row_renderer() = 0;

    /// Guards the records of all parameters, their list, and the pointers to host and view; the parameters share it.
    /// Hold it only to copy values, never across a call.
    virtual std::shared_ptr<std::mutex> get_record_lock() const = 0;

    /// During a restore, values are set as they are, without coupling between parameters. Calls nest and come in pairs;
    /// use restore_guard.
    virtual void begin_restore() = 0;
    virtual void end_restore() = 0;

    /// The positions that a user may go to.
    virtual undo_range get_undo_range() const = 0;
    /// The state stored at a position of that range; empty if there is none.
    virtual std::vector<std::uint8_t> get_undo_state(int position) const = 0;
};

} // namespace ov1
