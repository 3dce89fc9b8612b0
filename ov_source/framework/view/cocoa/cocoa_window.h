// A window for an editor on macOS.
#pragma once

#include "framework/window.h"
#include "shared/rect.h"

#include <memory>
#include <string>

namespace ov1
{

/// The native handle is the window's content view, an NSView. is_open may be called on any thread.
class cocoa_window final : public window
{
public:
    /// Visible at once, in the middle of the screen. Needs an NSApplication. Main thread only.
    cocoa_window(const rect& size, const std::string& title);
    /// Closes the window, and releases it and its delegate.
    ~cocoa_window() override;
    cocoa_window(const cocoa_window&) = delete;
    cocoa_window& operator=(const cocoa_window&) = delete;

    void close() override;
    bool is_open() const override;
    void* get_native_handle() const override;
    void begin_modal() override;
    void end_modal() override;
    bool is_modal() const override;
    /// Runs the modal session once, then the main run loop and the thread's run loop.
    void pop_pending_messages() override;
    void set_pump_hook(std::function<void()> hook) override;
    void raise() override;
    void set_resize_listener(std::function<void(int width, int height)> listener) override;

private:
    /// The system's objects, which this header does not name.
    struct parts;
    const std::unique_ptr<parts> held;
};

} // namespace ov1
