#include "framework/view/cview_v1.h"

#include "framework/ihost_v1.h"
#include "framework/parameters/iparameter_change_listener_v1.h"
#include "framework/parameters/iparameter_v1.h"
#include "framework/view/view_size.h"
#include "platform/iutils.h"

#include "vstgui/lib/controls/ccontrol.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace ov1
{

namespace
{

/// Whether the user can see the window.
bool is_shown(const window& window) { return window.get_native_handle() != nullptr && window.is_open(); }

} // namespace

cview_v1::cview_v1(std::weak_ptr<icomponent_v1> component)
    : component(std::move(component))
{
}

cview_v1::~cview_v1() = default;

bool cview_v1::query_interface(const std::string& name, iobject** out) { return answer_query(ifc_id, this, name, out); }

rect cview_v1::get_rect() const
{
    void* host_window = nullptr;
    const auto alive = get_component();
    const auto host = alive ? alive->get_host() : nullptr;
    // Without a host the main screen counts.
    if (host && !host->get_host_window(&host_window))
        host_window = nullptr;
    int width = 0, height = 0;
    iutils::get_instance().get_screen_dimensions(host_window, width, height);
    return view_size_for_screen(width, height);
}

std::shared_ptr<window> cview_v1::get_window() const
{
    const std::scoped_lock guard(shared_mutex);
    return opened;
}

bool cview_v1::open(std::shared_ptr<window> window)
{
    if (is_open() || !window || !window->get_native_handle())
    {
        std::fputs("Cannot open GUI window.\n", stderr);
        return false;
    }
    {
        const std::scoped_lock guard(shared_mutex);
        opened = std::move(window);
        editor_thread = std::this_thread::get_id();
        deferred.clear();
    }
    // Outside the lock: these call the editor's own code.
    init_view();
    update_controls(false);
    if (const auto alive = get_component())
    {
        // The state that the user can return to, without steps of an earlier session.
        alive->save_cancel_state();
        alive->flush_state_stack();
    }
    return true;
}

void cview_v1::close()
{
    listeners.clear();
    editing = false;
    open_gestures = 0;
    std::shared_ptr<window> leaving;
    {
        // Moved out, because closing a window may call back into this view.
        const std::scoped_lock guard(shared_mutex);
        leaving = std::move(opened);
        opened = nullptr;
        deferred.clear();
    }
    if (leaving)
        leaving->close();
}

bool cview_v1::is_open()
{
    const auto shown = get_window();
    return shown && is_shown(*shown);
}

bool cview_v1::idle()
{
    if (const auto shown = get_window())
        shown->pop_pending_messages();
    std::vector<change> arrived;
    // Swapped out, so that other threads can add changes while these are shown.
    {
        const std::scoped_lock guard(shared_mutex);
        arrived.swap(deferred);
    }
    for (const change& c : arrived)
        set_control_from_parameter(c.parameter, c.edit);
    return true;
}

/// A parameter is listed once, however often it was set: only its last value is shown.
void cview_v1::defer(const std::shared_ptr<iparameter_v1>& parameter, bool edit)
{
    const auto same = [&](const change& c) { return c.parameter == parameter; };
    if (const auto known = std::ranges::find_if(deferred, same); known != deferred.end())
        known->edit |= edit;
    else
        deferred.push_back({parameter, edit});
}

void cview_v1::set_control_from_parameter(std::shared_ptr<iparameter_v1> parameter, bool edit)
{
    std::shared_ptr<window> shown;
    {
        const std::scoped_lock guard(shared_mutex);
        // Controls belong to the editor's thread; other threads leave the change for its next idle.
        if (opened && editor_thread != std::this_thread::get_id())
            return defer(parameter, edit);
        shown = opened;
    }
    if (shown && is_shown(*shown))
    {
        const auto notified = listeners; // a listener may register or unregister others
        for (iparameter_change_listener_v1* listener : notified)
            listener->parameter_changed(parameter, edit);
    }
    update_control(*parameter, edit);
}

void cview_v1::update_controls(bool edit)
{
    const auto alive = get_component();
    const int count = alive ? alive->get_parameter_count() : 0;
    for (int i = 0; i < count; ++i)
        set_control_from_parameter(alive->get_parameter(i), edit);
}

void cview_v1::register_parameter_change_listener(iparameter_change_listener_v1* listener)
{
    if (std::ranges::find(listeners, listener) == listeners.end())
        listeners.push_back(listener);
}

void cview_v1::unregister_parameter_change_listener(iparameter_change_listener_v1* listener)
{
    std::erase(listeners, listener);
}

bool cview_v1::stands_for_parameter(VSTGUI::CControl& control) const
{
    // Controls of other kinds have tags that are no uid.
    const auto alive = get_component();
    return alive && alive->get_parameter(static_cast<uid>(control.getTag()));
}

void cview_v1::controlBeginEdit(VSTGUI::CControl* control)
{
    editing = true;
    if (stands_for_parameter(*control))
        begin_gesture();
}

void cview_v1::controlEndEdit(VSTGUI::CControl* control)
{
    if (stands_for_parameter(*control))
        end_gesture();
    editing = open_gestures > 0;
}

void cview_v1::begin_gesture()
{
    editing = true;
    // Undo returns to the state before the outermost gesture.
    const bool joins = std::exchange(joins_last_gesture, false);
    if (open_gestures++ == 0 && !joins)
        if (const auto alive = get_component())
            alive->save_state(true);
}

void cview_v1::end_gesture()
{
    // The end of an inner gesture, or one without a beginning.
    if (open_gestures == 0 || --open_gestures > 0)
        return;
    // Stored without advancing: redo returns to the state after the gesture.
    if (const auto alive = get_component())
        alive->save_state(false);
    editing = false;
}

} // namespace ov1
