// A native window for an editor, without types of a toolkit.
#pragma once

#include <functional>

namespace ov1
{

/// Created by a window_factory and owned by a shared pointer. Used only on the thread that created it.
class window
{
public:
    virtual ~window() = default;

    /// Removes the window from the screen. The native window exists as long as this object; the view removes its own
    /// content first.
    virtual void close() = 0;
    /// True from construction until the window is closed, by close() or by the user.
    virtual bool is_open() const = 0;
    /// The system's handle; null when there is no native window.
    virtual void* get_native_handle() const = 0;

    /// While modal, the window stays above its parent. Closing the window ends the modal state.
    virtual void begin_modal() = 0;
    virtual void end_modal() = 0;
    virtual bool is_modal() const = 0;

    /// Processes pending events, then waits up to 25 ms for more; input ends the wait.
    virtual void pop_pending_messages() = 0;
    /// The hook is called once in every pop_pending_messages, for a program whose own run loop must also run. An empty
    /// hook removes it.
    virtual void set_pump_hook(std::function<void()> hook) = 0;

    /// Puts the window above all others and gives it the keyboard focus.
    virtual void raise() = 0;

    /// The listener is called with the new size of the content in screen pixels when the user resizes the window. An
    /// empty listener removes it.
    virtual void set_resize_listener(std::function<void(int width, int height)> listener) = 0;
};

} // namespace ov1
