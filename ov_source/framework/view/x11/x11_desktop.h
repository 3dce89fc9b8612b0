// Our own connection to the X server: the windows that editors live in, screens and their resolution.
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

/// Atoms of the conventions for window managers that we speak.
struct x11_atoms
{
    xcb_atom_t wm_protocols, wm_delete_window, utf8_string, net_wm_name, net_wm_icon, net_wm_state, net_wm_state_modal,
        net_active_window;
};

/// Belongs to the editor's thread.
class x11_desktop final : public toolkit_event_handler
{
public:
    using event_listener = std::function<void(const xcb_generic_event_t& event)>;

    /// Null when no X server can be reached.
    static std::unique_ptr<x11_desktop> connect(VSTGUI::SharedPointer<poll_run_loop> loop);
    ~x11_desktop() noexcept;
    x11_desktop(const x11_desktop&) = delete;
    x11_desktop& operator=(const x11_desktop&) = delete;

    xcb_connection_t* get_connection() const { return connection; }
    const xcb_screen_t& get_screen() const { return *screen; }
    const x11_atoms& get_atoms() const { return atoms; }

    /// Events of one window go to its listener; a null event says that the server is gone.
    void add_window(xcb_window_t id, std::function<void(const xcb_generic_event_t*)> listener);
    void remove_window(xcb_window_t id);
    /// Returns when the server has done all that it was asked.
    void round_trip();

    /// Size in pixels of the monitor that shows most of the window, or of the main one for none.
    rect get_monitor_size(xcb_window_t window);
    /// What the desktop's settings say; nothing when they are silent.
    std::optional<double> get_dpi();

private:
    x11_desktop(VSTGUI::SharedPointer<poll_run_loop> loop, xcb_connection_t* connection, xcb_screen_t* screen);
    void onEvent() override;
    void lose_server();
    rect get_window_place(xcb_window_t window);

    const VSTGUI::SharedPointer<poll_run_loop> loop;
    xcb_connection_t* const connection;
    xcb_screen_t* const screen;
    x11_atoms atoms{};
    std::map<xcb_window_t, std::function<void(const xcb_generic_event_t*)>> listeners;
    bool is_lost = false;
};

} // namespace ov1
