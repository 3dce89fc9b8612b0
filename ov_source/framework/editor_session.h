// One editor session: opens the window and keeps the preview up to date until the user closes it.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace ov1
{

class icomponent_v1;
class image;
class iview_v1;
class window;

/// What a program adds to the session; every member may be empty.
struct editor_session_options
{
    std::string icon = "ov_icon";
    /// Called once per iteration of the event loop, for a program whose own run loop must also run.
    std::function<void()> pump = {};
    /// The number of frames to choose the preview from; 1 offers no choice.
    int frame_count = 1;
    /// Called when the user chooses a frame, counted from 0. The program reads it and calls set_picture.
    std::function<void(int frame)> frame_chosen = {};
};

/// Used on the editor's thread only. The component must have a host.
class editor_session
{
public:
    /// Keeps the component until the session is destroyed.
    explicit editor_session(std::shared_ptr<icomponent_v1> component);

    /// The preview's picture and the image it is rendered to: equal in size, type and origin, or both null for no
    /// preview. May be changed while the editor is open.
    void set_picture(std::shared_ptr<image> source, std::shared_ptr<image> destination);

    /// Opens the component's editor in a modal window above the host's and runs its event loop until the window is
    /// closed. Returns false if there is no editor or no window can be opened.
    [[nodiscard]] bool run(const editor_session_options& options);

    /// Brings the window to the front. Does nothing while no window is open.
    void raise();

private:
    /// Null if no window can be opened.
    std::shared_ptr<window> make_window(iview_v1& view, const editor_session_options& options);
    /// The event loop: returns when the view is closed.
    void serve(iview_v1& view);
    /// Renders the picture with the present parameters, between the events of a render.
    void render_preview();
    /// Passes a new source to the view, then renders.
    void show_picture(iview_v1& view);

    const std::shared_ptr<icomponent_v1> component;
    std::shared_ptr<image> source;
    std::shared_ptr<image> destination;
    /// The window of the running session.
    std::weak_ptr<window> shown;
    /// Set when the view has not seen the source yet.
    bool picture_is_new = false;
};

} // namespace ov1
