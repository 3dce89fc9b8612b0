#include "framework/editor_session.h"

#include "framework/icomponent_v1.h"
#include "framework/ihost_v1.h"
#include "framework/image_render.h"
#include "framework/iview_v1.h"
#include "framework/preview_sink.h"
#include "framework/row_renderer.h"
#include "framework/window_factory.h"

#include <utility>

namespace ov1
{

namespace
{

constexpr const char* title_separator = " - ";

/// Null if the view shows no preview.
preview_sink* sink_of(iview_v1& view) { return dynamic_cast<preview_sink*>(&view); }

} // namespace

editor_session::editor_session(std::shared_ptr<icomponent_v1> component)
    : component(std::move(component))
{
}

void editor_session::set_picture(std::shared_ptr<image> new_source, std::shared_ptr<image> new_destination)
{
    source = std::move(new_source);
    destination = std::move(new_destination);
    // Shown by the event loop, not here: the picture may be set while an event is being handled.
    picture_is_new = source && destination;
}

bool editor_session::run(const editor_session_options& options)
{
    // The view exists before the window, because it knows the window's size.
    const std::shared_ptr<iview_v1> view = component->create_view();
    if (!view)
        return false;
    const std::shared_ptr<window> opened = make_window(*view, options);
    if (!opened || !view->open(opened))
        return false;
    if (preview_sink* sink = sink_of(*view))
        sink->offer_frames(options.frame_count, options.frame_chosen);

    // Weak, so that raise() does nothing when the window has gone.
    shown = opened;
    opened->begin_modal();
    // The first preview shows the parameters as they are, even if nothing has changed.
    component->get_host()->schedule_render();
    picture_is_new = source && destination;
    serve(*view);
    opened->end_modal();
    view->close();
    // The hook may refer to objects of the caller that end with this call.
    opened->set_pump_hook({});
    return true;
}

std::shared_ptr<window> editor_session::make_window(iview_v1& view, const editor_session_options& options)
{
    void* parent = nullptr;
    if (!component->get_host()->get_host_window(&parent))
        parent = nullptr;
    const std::string title = component->get_vendor() + title_separator + component->get_name();
    auto made = window_factory::get_instance(options.icon).create_window(view.get_rect(), title, parent);
    if (made)
        made->set_pump_hook(options.pump);
    return made;
}

void editor_session::serve(iview_v1& view)
{
    // Each iteration waits in view.idle() until there is input, for 25 ms at most.
    while (view.is_open())
    {
        // One preview per iteration: changes that arrive during a render are shown together by the next.
        if (picture_is_new)
            show_picture(view);
        else if (component->get_host()->component_is_dirty())
            render_preview();
        component->idle();
        view.idle();
    }
}

void editor_session::show_picture(iview_v1& view)
{
    picture_is_new = false;
    if (preview_sink* sink = sink_of(view))
        // The source first, so that the comparison is never with an older picture.
        sink->set_preview_source(*source);
    render_preview();
}

void editor_session::render_preview()
{
    if (!source || !destination)
        return;
    // The component updates its table in render_begins, before the renderer is taken.
    const auto host = component->get_host();
    host->notify({event_kind::render_begins, invalid_id, source, destination});
    // render_ended follows even if nothing was rendered.
    if (render_image(*component->get_row_renderer(), *source, *destination))
        host->notify({event_kind::preview_rendered, invalid_id, source, destination});
    host->notify({event_kind::render_ended, invalid_id, source, destination});
}

void editor_session::raise()
{
    if (const auto opened = shown.lock())
        opened->raise();
}

} // namespace ov1
