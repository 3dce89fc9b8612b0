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

/// Owned by a shared pointer. Parameters, state and rendering may be used from any thread; view, undo ring, snapshots,
/// initialize and terminate belong to one thread, the editor's. No lock is held while host, view or a hook of the
/// effect is called.
class icomponent_v1 : public iobject
{
public:
    /// Makes the editor and keeps it as the view; null where there is none.
    virtual std::shared_ptr<iview_v1> create_view() = 0;

    virtual std::string get_name() const = 0;
    virtual std::string get_vendor() const = 0;
    /// Reverse domain notation: com.vendor.product
    virtual std::string get_com_identifier() const = 0;
    virtual version get_version() const = 0;

    /// Null before initialize and after terminate.
    virtual std::shared_ptr<ihost_v1> get_host() = 0;

    /// Takes the host, makes the parameters, tells the host event_kind::initialized and keeps the state as the default.
    /// A null host is ignored. At most once until terminate.
    virtual void initialize(std::shared_ptr<ihost_v1> host) = 0;
    /// Drops the view, tells the host event_kind::terminated, then lets go of parameters and host. Does nothing without
    /// a host.
    virtual void terminate() = 0;
    /// Makes and registers the parameters; called by initialize.
    virtual void init_component() = 0;

    /// Whether the effect refuses a state, and why; message is empty when it does not.
    virtual bool is_state_rejected(std::vector<std::uint8_t>& blob, bool edit, std::string& message) = 0;

    /// Restores every parameter that the state names, in its order, within a restore guard; a record that names no
    /// parameter goes to handle_unknown_parameter. Returns false, with nothing changed, when there are no parameters or
    /// the bytes are no state. Bytes after the last record are ignored, records cut short end the restore: callers
    /// with bytes from outside ask check_state_blob (state_blob.h) first.
    virtual bool set_state(std::vector<std::uint8_t>& blob, bool edit) = 0;
    /// All parameters in registration order, in the format of state_blob.h; empty when there are none.
    virtual std::vector<std::uint8_t> get_state() = 0;
    /// In bytes, for the parameters there are now; 8 when there are none.
    virtual std::size_t get_state_size() const = 0;

    /// One step back or forth on the ring, or to a position; nothing at the ends, and nothing during a gesture.
    virtual void undo() = 0;
    virtual void redo() = 0;
    /// Keeps the present state for cancel_effect.
    virtual void save_cancel_state() = 0;
    /// Stores the state in the current slot while the view is open and no undo or redo is running. With advance the
    /// slot is committed and later ones are discarded. Returns the position before.
    virtual int save_state(bool advance) = 0;
    virtual void jump_undo_stack(int position) = 0;
    virtual void flush_state_stack() = 0;

    virtual int get_parameter_count() const = 0;
    /// By place in registration order, by uid or by exact name; null when there is none.
    virtual std::shared_ptr<iparameter_v1> get_parameter(int index) = 0;
    virtual std::shared_ptr<iparameter_v1> get_parameter(uid id) = 0;
    virtual std::shared_ptr<iparameter_v1> get_parameter(std::string name) = 0;

    /// The view made by create_view; null without one.
    virtual std::shared_ptr<iview_v1> get_view() = 0;

    /// Events that parameters and component sent to the host come back here. event_kind::render_begins brings the
    /// rendering up to date before it returns.
    virtual void notify(event e) = 0;

    /// One pixel; safe from several threads.
    virtual void render_pixel(std::size_t x, std::size_t y, const argb_float& in, argb_float& out) = 0;

    /// Opens the manual with the user's browser: the page manual/index.html among the resources, or the address that
    /// the build was given.
    virtual void open_manual() = 0;
    /// Called now and then by the host's side.
    virtual void idle() = 0;

    /// The bypass is the first parameter with parameter_is_bypass; without one, set does nothing and get is false.
    virtual bool has_bypass() = 0;
    virtual void set_bypass(bool bypass) = 0;
    virtual bool get_bypass() = 0;

    /// Back to the state right after initialize.
    virtual void reset_to_default() = 0;
    /// Tells the host event_kind::cancelled and goes back to the state of save_cancel_state.
    virtual void cancel_effect() = 0;

    /// A restored state or a preset names a parameter that does not exist. value is as stored.
    virtual void handle_unknown_parameter(uid id, const param_value& value, bool edit) = 0;

    /// count pixels of row y, x counted from 0; in and out may be the same; safe from several threads. For whole tiles
    /// take get_row_renderer.
    virtual void render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count) = 0;

    /// Renders with the table published now, whatever is published later. Taken once a tile, after
    /// event_kind::render_begins; never null.
    virtual std::shared_ptr<const row_renderer> get_row_renderer() = 0;

    /// Guards the records of all parameters, the list of them, and the pointers to host and view; the parameters share
    /// it. Hold it for copies only, never across a call.
    virtual std::shared_ptr<std::mutex> get_record_lock() const = 0;

    /// While a restore is running values are taken as they come. Calls nest and pair; use restore_guard.
    virtual void begin_restore() = 0;
    virtual void end_restore() = 0;

    /// What undo, redo and jump may be offered for.
    virtual undo_range get_undo_range() const = 0;
    /// The state stored at a position of that range; empty where nothing is.
    virtual std::vector<std::uint8_t> get_undo_state(int position) const = 0;
};

} // namespace ov1
