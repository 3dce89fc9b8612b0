// A top-level X11 window for an editor.
#pragma once

#include "framework/view/x11/x11_desktop.h"
#include "framework/window.h"
#include "shared/rect.h"

#include <atomic>
#include <memory>
#include <string>

namespace ov1
{

/// The native handle is the X11 window id. is_open may be called on any thread.
class x11_window final : public window
{
public:
    /// parent is the handle of another window, or null. Desktop and loop must outlive the window.
    x11_window(x11_desktop& desktop, poll_run_loop& loop, const std::string& icon, const rect& size,
               const std::string& title, void* parent);
    /// Destroys the native window. The view must have removed its content.
    ~x11_window() override;

    void close() override;
    bool is_open() const override { return open; }
    void* get_native_handle() const override;
    void begin_modal() override;
    void end_modal() override { modal = false; }
    bool is_modal() const override { return modal; }
    void pop_pending_messages() override;
    void set_pump_hook(std::function<void()> hook) override { pump_hook = std::move(hook); }
    void raise() override;
    void set_resize_listener(std::function<void(int width, int height)> listener) override
    {
        resize_listener = std::move(listener);
    }

private:
    /// Title, class, icon, smallest size and parent, as window managers read them.
    void set_properties(const std::string& icon, const rect& size, const std::string& title);
    void set_icon(const std::string& icon);
    /// A null event means that the connection is lost: the window then counts as closed.
    void take_event(const xcb_generic_event_t* event);
    /// In screen pixels.
    void take_size(int new_width, int new_height);

    x11_desktop& desktop;
    poll_run_loop& loop;
    const xcb_window_t parent;
    const xcb_window_t id;
    /// Atomic, because is_open may be called on any thread.
    std::atomic<bool> open = true;
    bool modal = false;
    /// The size that was reported last, in pixels.
    int width;
    int height;
    std::function<void()> pump_hook;
    std::function<void(int, int)> resize_listener;
};

} // namespace ov1
