// Where native windows come from: a seam that the view side fills, empty in a program without windows.
#pragma once

#include "framework/window.h"
#include "shared/rect.h"

#include <functional>
#include <memory>
#include <string>

namespace ov1
{

/// Makes windows that carry one icon.
class window_factory
{
public:
    /// One for each icon, made at the first call and never destroyed. The icon is a picture among the resources, named
    /// without its ".png"; a missing one leaves the desktop's own. Any thread.
    static window_factory& get_instance(const std::string& icon);

    /// A shown window of the rectangle's size, above the parent where there is one. Null where there are no windows or
    /// the desktop refuses. The calling thread becomes the window's.
    std::shared_ptr<window> create_window(const rect& size, const std::string& title, void* parent);

private:
    explicit window_factory(std::string icon);

    const std::string icon;
};

using window_maker = std::function<std::shared_ptr<window>(const std::string& icon, const rect& size,
                                                           const std::string& title, void* parent)>;

/// For the whole process, from any thread; replaces the one before, and an empty one removes it.
void install_window_maker(window_maker maker);

} // namespace ov1
