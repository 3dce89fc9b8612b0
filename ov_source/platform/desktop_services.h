// Services that need a desktop. The editor installs them; a program without windows has none.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace ov1
{

/// Each may be empty. They are called on the thread of the window that is passed; a null window means none.
struct desktop_services
{
    /// Shows a modal alert; an empty second button is not shown. Returns true exactly when the first button was chosen.
    /// If this is empty, title and message are written to stderr and the answer is false.
    std::function<bool(void* parent_window, const std::string& title, const std::string& message,
                       const std::string& first_button, const std::string& second_button)>
        show_alert;

    /// Size in pixels of the screen that shows most of the window, or of the main screen for a null window. If it
    /// returns false or is empty, 1920 x 1080 is used.
    std::function<bool(void* window, int& width, int& height)> query_screen;

    /// The desktop's dots per inch; 96 is a scale of 1, and is used when this is empty.
    std::function<double()> query_dpi;
};

/// Replaces all services at once, for the whole process. Any thread.
void install_desktop_services(desktop_services services);

/// The installed services, never null. Any thread.
std::shared_ptr<const desktop_services> get_desktop_services();

} // namespace ov1
