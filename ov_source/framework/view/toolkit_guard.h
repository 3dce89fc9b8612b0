// The toolkit, its run loop and the connection to the desktop, for as long as a program shows windows.
#pragma once

#include <memory>

namespace VSTGUI
{
class CFrame;
}

namespace ov1
{

/// One at a time, made and destroyed by the editor's thread, and held for the life of the program or plug-in: the
/// toolkit does not survive that its connection to the desktop is closed and opened again. Installs the window maker
/// and the desktop's services, and removes them at its end. Works without a desktop, too; windows are then not to be
/// had.
class toolkit_guard
{
public:
    toolkit_guard();
    ~toolkit_guard();
    toolkit_guard(const toolkit_guard&) = delete;
    toolkit_guard& operator=(const toolkit_guard&) = delete;

    /// Serves windows and timers once, waiting up to 25 ms: for questions that are asked in the middle of an event, and
    /// for tests.
    static void process_events();

    /// Opens the frame in a window's native handle. False where the toolkit or the desktop refuses.
    [[nodiscard]] static bool open_frame(VSTGUI::CFrame& frame, void* native_handle);

private:
    struct parts;
    static parts* running; ///< those of the scope that there is
    const std::unique_ptr<parts> held;
};

} // namespace ov1
