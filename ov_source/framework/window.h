// A native window that an editor is shown in, free of any toolkit.
#pragma once

#include <functional>

namespace ov1
{

/// Made by a window_factory and owned by a shared pointer. Belongs to the thread that made it.
class window
{
public:
    virtual ~window() = default;

    /// Takes the window off the screen. The native window itself lives as long as this object: the view closes what it
    /// has put into it first.
    virtual void close() = 0;
    /// From its making until it is closed, by close or by the user.
    virtual bool is_open() const = 0;
    /// The system's handle; null when there is no native window.
    virtual void* get_native_handle() const = 0;

    /// While modal, the window stands above its parent, and pop_pending_messages serves it. Closing ends it.
    virtual void begin_modal() = 0;
    virtual void end_modal() = 0;
    virtual bool is_modal() const = 0;

    /// Works off what has arrived, then waits up to 25 ms for more; input ends the wait.
    virtual void pop_pending_messages() = 0;
    /// Called once in every pop_pending_messages: for a program whose own run loop must turn too. Empty removes it.
    virtual void set_pump_hook(std::function<void()> hook) = 0;

    /// Above the other windows, with the keyboard.
    virtual void raise() = 0;

    /// Called with the new size of the contents in screen pixels when the user resizes the window. Empty removes it.
    virtual void set_resize_listener(std::function<void(int width, int height)> listener) = 0;
};

} // namespace ov1
