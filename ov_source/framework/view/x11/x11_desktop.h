// Our own connection to the X server: events of editor windows, screens and their resolution.
#pragma once

#include "framework/view/x11/poll_run_loop.h"
#include "shared/rect.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include <xcb/xcb.h>

namespace ov1
{

/// Atoms of the window manager conventions that we use (ICCCM, EWMH).
struct x11_atoms
{
    xcb_atom_t wm_protocols, wm_delete_window, utf8_string, net_wm_name, net_wm_icon, net_wm_state, net_wm_state_modal,
        net_active_window;
};

/// Used on the editor's thread only.
class x11_desktop final : public toolkit_event_handler
{
public:
    using event_listener = std::function<void(const xcb_generic_event_t& event)>;

    /// Null if no X server can be reached.
    static std::unique_ptr<x11_desktop> connect(VSTGUI::SharedPointer<poll_run_loop> loop);
    /// Windows must be destroyed first.
    ~x11_desktop() noexcept;
    x11_desktop(const x11_desktop&) = delete;
    x11_desktop& operator=(const x11_desktop&) = delete;

    /// All three are valid as long as this object.
    xcb_connection_t* get_connection() const { return connection; }
    const xcb_screen_t& get_screen() const { return *screen; }
    const x11_atoms& get_atoms() const { return atoms; }

    /// Sends the events of a window to its listener; a null event means that the connection is lost.
    void add_window(xcb_window_t id, std::function<void(const xcb_generic_event_t*)> listener);
    void remove_window(xcb_window_t id);
    /// Returns after the server has processed all requests.
    void round_trip();

    /// Size in pixels of the monitor that shows most of the window, or of the main monitor for none.
    rect get_monitor_size(xcb_window_t window);
    /// From the desktop's settings; nothing if they have no value.
    std::optional<double> get_dpi();

private:
    x11_desktop(VSTGUI::SharedPointer<poll_run_loop> loop, xcb_connection_t* connection, xcb_screen_t* screen);
    /// Reads all events that have arrived and passes them on.
    void onEvent() override;
    /// Calls every listener with a null event.
    void lose_server();
    /// Place and size on the screen; empty if the window does not exist.
    rect get_window_place(xcb_window_t window);

    const VSTGUI::SharedPointer<poll_run_loop> loop;
    xcb_connection_t* const connection;
    xcb_screen_t* const screen;
    x11_atoms atoms{};
    /// By window.
    std::map<xcb_window_t, std::function<void(const xcb_generic_event_t*)>> listeners;
    bool is_lost = false;
};

} // namespace ov1
