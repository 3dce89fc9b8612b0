// One sitting at the editor: its window opened, its preview kept up to date, until the user closes it.
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

/// What a program adds to the sitting; every member may be left empty.
struct editor_session_options
{
    std::string icon = "ov_icon";
    /// Called once a turn, for a program whose own run loop must turn meanwhile.
    std::function<void()> pump = {};
    /// Frames that the user may choose from for the preview; 1 offers no choice.
    int frame_count = 1;
    /// The user chose a frame, counted from 0: the program reads it and calls set_picture.
    std::function<void(int frame)> frame_chosen = {};
};

/// Belongs to the editor's thread. The component must have a host.
class editor_session
{
public:
    explicit editor_session(std::shared_ptr<icomponent_v1> component);

    /// The preview's picture, and where it is rendered to: alike in size, type and origin, or both null for none. May
    /// be changed while the editor is open.
    void set_picture(std::shared_ptr<image> source, std::shared_ptr<image> destination);

    /// Opens the component's editor in a window above the host's, modally, and serves it until it is closed. False when
    /// there is no editor or no window to be had.
    [[nodiscard]] bool run(const editor_session_options& options);

    /// Brings the window to the front; nothing while none is open.
    void raise();

private:
    std::shared_ptr<window> make_window(iview_v1& view, const editor_session_options& options);
    void serve(iview_v1& view);
    void render_preview();
    void show_picture(iview_v1& view);

    const std::shared_ptr<icomponent_v1> component;
    std::shared_ptr<image> source;
    std::shared_ptr<image> destination;
    std::weak_ptr<window> shown;
    bool picture_is_new = false;
};

} // namespace ov1
