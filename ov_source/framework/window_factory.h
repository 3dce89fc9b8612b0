// Creates native windows. The toolkit's half installs the window maker; a program without windows has none.
#pragma once

#include "framework/window.h"
#include "shared/rect.h"

#include <functional>
#include <memory>
#include <string>

namespace ov1
{

/// Creates windows with one icon.
class window_factory
{
public:
    /// One factory per icon, created at the first call and never destroyed. icon is the name of a resource without
    /// ".png"; if it is missing, the desktop's default icon is shown. Any thread.
    static window_factory& get_instance(const std::string& icon);

    /// A visible window of the rectangle's size, above the parent if there is one. Null if no window maker is installed
    /// or the desktop fails. The calling thread becomes the window's.
    std::shared_ptr<window> create_window(const rect& size, const std::string& title, void* parent);

private:
    explicit window_factory(std::string icon);

    const std::string icon;
};

/// Makes a visible window, or returns null. Called on the thread of the window.
using window_maker = std::function<std::shared_ptr<window>(const std::string& icon, const rect& size,
                                                           const std::string& title, void* parent)>;

/// For the whole process; replaces the previous maker, an empty one removes it. Any thread.
void install_window_maker(window_maker maker);

} // namespace ov1
