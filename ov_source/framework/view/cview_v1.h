// The base class of editors: window, listeners and undo brackets, without controls of its own.
#pragma once

#include "framework/icomponent_v1.h"
#include "framework/iview_v1.h"
#include "framework/window.h"

#include "vstgui/lib/controls/icontrollistener.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace ov1
{

/// Listens to every control of the editor. A control's tag is the uid of its parameter.
class cview_v1 : public iview_v1, public VSTGUI::IControlListener
{
public:
    static constexpr uid ifc_id = make_uid("cview_v1");

    explicit cview_v1(std::weak_ptr<icomponent_v1> component);
    ~cview_v1() override;

    bool query_interface(const std::string& name, iobject** out) override;
    /// view_size_for_screen for the screen that shows the host's window.
    rect get_rect() const override;
    /// Also saves the state for cancelling and clears the undo history. Writes "Cannot open GUI window." to stderr on
    /// failure.
    [[nodiscard]] bool open(std::shared_ptr<window> window) override;
    void close() override;
    bool is_open() override;
    bool is_editing() override { return editing; }
    /// Also shows the parameters that other threads have set since the last call.
    bool idle() override;
    void init_view() override {}
    /// On any thread but the one that opened the view, the parameter is shown at the next idle.
    void set_control_from_parameter(std::shared_ptr<iparameter_v1> parameter, bool edit) override;
    void update_controls(bool edit) override;
    void register_parameter_change_listener(iparameter_change_listener_v1* listener) override;
    void unregister_parameter_change_listener(iparameter_change_listener_v1* listener) override;

    void valueChanged(VSTGUI::CControl*) override {}
    void controlBeginEdit(VSTGUI::CControl* control) override;
    void controlEndEdit(VSTGUI::CControl* control) override;

protected:
    /// Null after the component is destroyed.
    std::shared_ptr<icomponent_v1> get_component() const { return component.lock(); }
    /// Null while closed.
    std::shared_ptr<window> get_window() const;
    /// Shows a parameter in the editor's own controls. Called on the editor's thread, after the listeners, and also for
    /// parameters that change before open.
    virtual void update_control(iparameter_v1&, bool) {}
    /// For gestures that do not come from a parameter's control. Nested gestures are one undo step.
    void begin_gesture();
    void end_gesture();
    /// Makes the next gesture part of the previous one: both are one undo step.
    void join_gestures() { joins_last_gesture = true; }

private:
    /// A parameter that another thread has set.
    struct change
    {
        std::shared_ptr<iparameter_v1> parameter;
        bool edit;
    };

    /// For the next idle; the caller holds shared_mutex.
    void defer(const std::shared_ptr<iparameter_v1>& parameter, bool edit);
    /// Whether the control's tag is the uid of a parameter.
    bool stands_for_parameter(VSTGUI::CControl& control) const;

    const std::weak_ptr<icomponent_v1> component;
    mutable std::mutex shared_mutex; ///< guards opened, editor_thread and deferred
    std::shared_ptr<window> opened;
    std::thread::id editor_thread;
    std::vector<change> deferred;
    std::vector<iparameter_change_listener_v1*> listeners; ///< in the order of registration, each once
    /// Read on any thread.
    std::atomic<bool> editing = false;
    /// How many gestures are nested now.
    int open_gestures = 0;
    /// Set by join_gestures for the next gesture only.
    bool joins_last_gesture = false;
};

} // namespace ov1
