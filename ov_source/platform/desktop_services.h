// What only a desktop can tell: seams that the editor fills, empty in a program without windows.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace ov1
{

/// Each may be left empty. They are called from the thread of the window that is passed, null for none.
struct desktop_services
{
    /// Shows a modal alert; an empty second button is not shown. True exactly when the first was chosen.
    /// Without it the title and the message go to stderr and the answer is false.
    std::function<bool(void* parent_window, const std::string& title, const std::string& message,
                       const std::string& first_button, const std::string& second_button)>
        show_alert;

    /// Size in pixels of the screen that shows most of the window, or of the main screen without one. False leaves the
    /// size to the default of 1920 x 1080, which also holds without this service.
    std::function<bool(void* window, int& width, int& height)> query_screen;

    /// The desktop's dots per inch; 96 is a scale of 1, which also holds without this service.
    std::function<double()> query_dpi;
};

/// Replaces all services at once, for the whole process. Any thread.
void install_desktop_services(desktop_services services);

/// The services in force, never null.
std::shared_ptr<const desktop_services> get_desktop_services();

} // namespace ov1
