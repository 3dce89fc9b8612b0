#include "framework/view/x11/x11_desktop.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <string_view>
#include <utility>
#include <vector>

#include <xcb/randr.h>

namespace ov1
{

namespace
{

/// The caller frees the reply of the server.
struct free_answer
{
    void operator()(void* p) const { std::free(p); }
};

/// Null for a failed request.
template <typename T>
std::unique_ptr<T, free_answer> own(T* reply)
{
    return std::unique_ptr<T, free_answer>(reply);
}

/// Atoms that the server does not return are 0.
x11_atoms intern_atoms(xcb_connection_t* connection)
{
    constexpr std::array<std::string_view, 8> names = {"WM_PROTOCOLS",        "WM_DELETE_WINDOW",  "UTF8_STRING",
                                                       "_NET_WM_NAME",        "_NET_WM_ICON",      "_NET_WM_STATE",
                                                       "_NET_WM_STATE_MODAL", "_NET_ACTIVE_WINDOW"};
    // All requests are sent before the first reply is read: one round trip instead of eight.
    std::array<xcb_intern_atom_cookie_t, names.size()> asked;
    for (std::size_t i = 0; i < names.size(); ++i)
        asked[i] = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(names[i].size()), names[i].data());
    std::array<xcb_atom_t, names.size()> got{};
    for (std::size_t i = 0; i < names.size(); ++i)
        if (const auto reply = own(xcb_intern_atom_reply(connection, asked[i], nullptr)))
            got[i] = reply->atom;
    return {got[0], got[1], got[2], got[3], got[4], got[5], got[6], got[7]};
}

/// The window of an event, for the events that our windows select.
xcb_window_t window_of(const xcb_generic_event_t& event)
{
    switch (event.response_type & 0x7f)
    {
    case XCB_CLIENT_MESSAGE:
        return reinterpret_cast<const xcb_client_message_event_t&>(event).window;
    case XCB_CONFIGURE_NOTIFY:
        return reinterpret_cast<const xcb_configure_notify_event_t&>(event).window;
    default:
        return XCB_WINDOW_NONE;
    }
}

/// The area in pixels that two rectangles share.
long overlap(const rect& a, const rect& b)
{
    const long width = std::min(a.x + a.width, b.x + b.width) - std::max(a.x, b.x);
    const long height = std::min(a.y + a.height, b.y + b.height) - std::max(a.y, b.y);
    return width > 0 && height > 0 ? width * height : 0;
}

/// A monitor with its place on the screen.
struct monitor
{
    rect place;
    bool is_main;
};

/// Empty if the server does not support RandR.
std::vector<monitor> list_monitors(xcb_connection_t* connection, xcb_window_t root)
{
    std::vector<monitor> found;
    const auto* extension = xcb_get_extension_data(connection, &xcb_randr_id);
    if (!extension || !extension->present)
        return found;
    const auto reply =
        own(xcb_randr_get_monitors_reply(connection, xcb_randr_get_monitors(connection, root, 1), nullptr));
    if (!reply)
        return found;
    for (auto i = xcb_randr_get_monitors_monitors_iterator(reply.get()); i.rem; xcb_randr_monitor_info_next(&i))
        found.push_back({{i.data->x, i.data->y, i.data->width, i.data->height}, i.data->primary != 0});
    return found;
}

} // namespace

std::unique_ptr<x11_desktop> x11_desktop::connect(VSTGUI::SharedPointer<poll_run_loop> loop)
{
    int screen_number = 0;
    // xcb_connect returns an object that must be released even if it fails.
    xcb_connection_t* const connection = xcb_connect(nullptr, &screen_number);
    if (xcb_connection_has_error(connection))
    {
        xcb_disconnect(connection);
        return nullptr;
    }
    // The display's name also selects a screen.
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screen_number > 0 && screens.rem > 1; --screen_number)
        xcb_screen_next(&screens);
    return std::unique_ptr<x11_desktop>(new x11_desktop(std::move(loop), connection, screens.data));
}

x11_desktop::x11_desktop(VSTGUI::SharedPointer<poll_run_loop> loop, xcb_connection_t* connection, xcb_screen_t* screen)
    : loop(std::move(loop))
    , connection(connection)
    , screen(screen)
    , atoms(intern_atoms(connection))
{
    this->loop->registerEventHandler(xcb_get_file_descriptor(connection), this);
}

x11_desktop::~x11_desktop() noexcept
{
    if (!is_lost)
        loop->unregisterEventHandler(this);
    xcb_disconnect(connection);
}

void x11_desktop::add_window(xcb_window_t id, std::function<void(const xcb_generic_event_t*)> listener)
{
    listeners[id] = std::move(listener);
}

void x11_desktop::remove_window(xcb_window_t id) { listeners.erase(id); }

// The focus is of no interest: any request with a reply waits for the requests before it.
void x11_desktop::round_trip() { own(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr)); }

void x11_desktop::onEvent()
{
    while (const auto event = own(xcb_poll_for_event(connection)))
    {
        // Events of windows that were removed are ignored.
        const auto found = listeners.find(window_of(*event));
        if (found == listeners.end())
            continue;
        const auto listener = found->second; // which may remove itself
        listener(event.get());
    }
    if (xcb_connection_has_error(connection) && !is_lost)
        lose_server();
}

void x11_desktop::lose_server()
{
    // The closed descriptor would wake poll forever.
    is_lost = true;
    loop->unregisterEventHandler(this);
    // A copy, because a listener may remove its window.
    const auto notified = listeners;
    for (const auto& [id, listener] : notified)
        listener(nullptr);
}

rect x11_desktop::get_window_place(xcb_window_t window)
{
    const auto size = own(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    // Relative to the root window: window managers put windows inside frames of their own.
    const auto corner = own(xcb_translate_coordinates_reply(
        connection, xcb_translate_coordinates(connection, window, screen->root, 0, 0), nullptr));
    return size && corner ? rect{corner->dst_x, corner->dst_y, size->width, size->height} : rect{};
}

rect x11_desktop::get_monitor_size(xcb_window_t window)
{
    const auto monitors = list_monitors(connection, screen->root);
    if (monitors.empty())
        return {0, 0, screen->width_in_pixels, screen->height_in_pixels};
    // The main monitor, unless the window shows more on another.
    auto best = std::ranges::find_if(monitors, &monitor::is_main);
    if (best == monitors.end())
        best = monitors.begin();
    if (window != XCB_WINDOW_NONE)
    {
        const rect place = get_window_place(window);
        const auto shown_more = [&](const monitor& a, const monitor& b)
        { return overlap(a.place, place) < overlap(b.place, place); };
        const auto most = std::ranges::max_element(monitors, shown_more);
        // A window outside all monitors counts for none.
        if (overlap(most->place, place) > 0)
            best = most;
    }
    return {0, 0, best->place.width, best->place.height};
}

std::optional<double> x11_desktop::get_dpi()
{
    // Desktops store it in a resource text of the root window, as the line "Xft.dpi:\t96".
    constexpr std::uint32_t longest_in_words = 16 * 1024;
    const auto reply = own(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, 0, screen->root, XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 0, longest_in_words),
        nullptr));
    if (!reply)
        return {};
    const std::string_view text(static_cast<const char*>(xcb_get_property_value(reply.get())),
                                static_cast<std::size_t>(xcb_get_property_value_length(reply.get())));
    constexpr std::string_view key = "Xft.dpi:";
    const auto at = text.find(key);
    if (at == text.npos)
        return {};
    const auto first = text.find_first_not_of(" \t", at + key.size());
    double dpi = 0;
    if (first == text.npos || std::from_chars(text.data() + first, text.data() + text.size(), dpi).ec != std::errc())
        return {};
    return dpi;
}

} // namespace ov1
