#include "framework/view/x11/x11_window.h"

#include "framework/view/view_size.h"
#include "framework/view/x11/icon_pixels.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace ov1
{

namespace
{

constexpr std::chrono::milliseconds longest_wait(25);

/// The layout of WM_NORMAL_HINTS (ICCCM 4.1.2.3).
struct size_hints
{
    static constexpr std::uint32_t has_least_size = 1 << 4;

    std::uint32_t flags;
    std::array<std::int32_t, 4> unused;
    std::int32_t least_width, least_height;
    std::array<std::int32_t, 11> also_unused;
};
static_assert(sizeof(size_hints) == 18 * 4);

xcb_window_t as_window(void* handle) { return static_cast<xcb_window_t>(reinterpret_cast<std::uintptr_t>(handle)); }

} // namespace

x11_window::x11_window(x11_desktop& desktop, poll_run_loop& loop, const std::string& icon, const rect& size,
                       const std::string& title, void* parent)
    : desktop(desktop)
    , loop(loop)
    , parent(as_window(parent))
    , id(xcb_generate_id(desktop.get_connection()))
    , width(size.width)
    , height(size.height)
{
    const xcb_screen_t& screen = desktop.get_screen();
    const std::uint32_t values[] = {screen.black_pixel, XCB_EVENT_MASK_STRUCTURE_NOTIFY};
    xcb_create_window(desktop.get_connection(), XCB_COPY_FROM_PARENT, id, screen.root, 0, 0,
                      static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen.root_visual, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values);
    set_properties(icon, size, title);
    desktop.add_window(id, [this](const xcb_generic_event_t* event) { take_event(event); });
    // Mapped after all properties are set, as window managers read them at this moment.
    xcb_map_window(desktop.get_connection(), id);
    // The toolkit creates its window inside ours over its own connection, so the server must have created ours first.
    desktop.round_trip();
}

x11_window::~x11_window()
{
    desktop.remove_window(id);
    xcb_destroy_window(desktop.get_connection(), id);
    // Requests wait in a buffer until they are flushed.
    xcb_flush(desktop.get_connection());
}

void x11_window::set_properties(const std::string& icon, const rect& size, const std::string& title)
{
    xcb_connection_t* const connection = desktop.get_connection();
    const x11_atoms& atoms = desktop.get_atoms();
    // Texts have elements of 8 bits.
    const auto set_text = [&](xcb_atom_t property, xcb_atom_t type, std::string_view text)
    {
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id, property, type, 8,
                            static_cast<std::uint32_t>(text.size()), text.data());
    };
    // The old name for old window managers, the new one for UTF-8.
    set_text(XCB_ATOM_WM_NAME, XCB_ATOM_STRING, title);
    set_text(atoms.net_wm_name, atoms.utf8_string, title);
    // Two texts, each with its null: instance and class.
    set_text(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, std::string_view("veridial\0Veridial\0", 18));
    // Without it the window manager closes our connection when the user closes the window.
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id, atoms.wm_protocols, XCB_ATOM_ATOM, 32, 1,
                        &atoms.wm_delete_window);
    const size_hints hints{size_hints::has_least_size,
                           {},
                           // Never larger than the window itself.
                           std::min(least_view_width, size.width),
                           std::min(least_view_height, size.height),
                           {}};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id, XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS, 32,
                        sizeof hints / 4, &hints);
    // Keeps this window above its parent.
    if (parent != XCB_WINDOW_NONE)
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, 32, 1,
                            &parent);
    set_icon(icon);
}

void x11_window::set_icon(const std::string& icon)
{
    const auto words = read_icon_pixels(icon);
    if (!words.empty())
        xcb_change_property(desktop.get_connection(), XCB_PROP_MODE_REPLACE, id, desktop.get_atoms().net_wm_icon,
                            XCB_ATOM_CARDINAL, 32, static_cast<std::uint32_t>(words.size()), words.data());
}

void* x11_window::get_native_handle() const { return reinterpret_cast<void*>(std::uintptr_t{id}); }

void x11_window::close()
{
    // close() is called by the user's click as well as by the view.
    if (!open)
        return;
    open = false;
    modal = false;
    xcb_unmap_window(desktop.get_connection(), id);
    xcb_flush(desktop.get_connection());
}

void x11_window::begin_modal()
{
    modal = open;
    // Without a parent there is no window to stay above.
    if (parent == XCB_WINDOW_NONE)
        return;
    const x11_atoms& atoms = desktop.get_atoms();
    xcb_change_property(desktop.get_connection(), XCB_PROP_MODE_REPLACE, id, atoms.net_wm_state, XCB_ATOM_ATOM, 32, 1,
                        &atoms.net_wm_state_modal);
    xcb_flush(desktop.get_connection());
}

void x11_window::pop_pending_messages()
{
    // Before waiting, so that the program's own loop is not delayed.
    if (pump_hook)
        pump_hook();
    loop.run_once(longest_wait);
}

void x11_window::raise()
{
    xcb_connection_t* const connection = desktop.get_connection();
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(connection, id, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    // The window manager decides which window has the keyboard focus (EWMH, _NET_ACTIVE_WINDOW).
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = id;
    request.type = desktop.get_atoms().net_active_window;
    request.data.data32[0] = 1; // from an application
    xcb_send_event(connection, 0, desktop.get_screen().root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&request));
    xcb_flush(connection);
}

void x11_window::take_event(const xcb_generic_event_t* event)
{
    if (!event)
    {
        open = false;
        modal = false;
        return;
    }
    if ((event->response_type & 0x7f) == XCB_CONFIGURE_NOTIFY)
    {
        const auto& size = reinterpret_cast<const xcb_configure_notify_event_t&>(*event);
        take_size(size.width, size.height);
    }
    else if (reinterpret_cast<const xcb_client_message_event_t&>(*event).data.data32[0] ==
             desktop.get_atoms().wm_delete_window)
        close();
}

void x11_window::take_size(int new_width, int new_height)
{
    // Moving the window sends this event as well.
    if (new_width == width && new_height == height)
        return;
    width = new_width;
    height = new_height;
    if (resize_listener)
        resize_listener(width, height);
}

} // namespace ov1
