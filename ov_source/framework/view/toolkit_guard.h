// Initialises the toolkit, its run loop and the connection to the desktop.
#pragma once

#include <memory>

namespace VSTGUI
{
class CFrame;
}

namespace ov1
{

/// At most one exists at a time, created and destroyed on the editor's thread and kept for the life of the program or
/// plug-in: the toolkit cannot close its connection to the desktop and open it again. Installs the window maker and the
/// desktop services, and removes them in the destructor. Without a desktop it works as well, but no window can be
/// opened.
class toolkit_guard
{
public:
    toolkit_guard();
    ~toolkit_guard();
    toolkit_guard(const toolkit_guard&) = delete;
    toolkit_guard& operator=(const toolkit_guard&) = delete;

    /// Processes pending events and timers once, waiting up to 25 ms. For modal questions asked while an event is being
    /// handled, and for tests.
    static void process_events();

    /// Opens the frame in a native window. Returns false if the toolkit or the desktop fails.
    [[nodiscard]] static bool open_frame(VSTGUI::CFrame& frame, void* native_handle);

private:
    struct parts;
    static parts* running; ///< of the existing guard, or null
    /// The parts depend on the system.
    const std::unique_ptr<parts> held;
};

} // namespace ov1
