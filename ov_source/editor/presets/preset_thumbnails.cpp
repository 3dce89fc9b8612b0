#include "editor/presets/preset_thumbnails.h"

#include "editor/preview/display_grade.h"
#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/icomponent_v1.h"
#include "presets/preset_reader.h"

#include <utility>

namespace ov1
{

preset_thumbnails::preset_thumbnails(std::vector<std::string> files, display_picture picture)
    : files(std::move(files))
    , picture(std::move(picture))
    , worker([this](std::stop_token stop) { work(std::move(stop)); })
{
}

std::map<std::size_t, preset_thumbnail> preset_thumbnails::take()
{
    const std::scoped_lock guard(done_mutex);
    return std::exchange(done, {});
}

void preset_thumbnails::work(std::stop_token stop)
{
    // Initialized and terminated on this thread. It has no view, so that no step is kept in an undo history.
    const auto component = create_ccomponent();
    component->initialize(std::make_shared<chost_v1>(component));
    for (std::size_t i = 0; i < files.size() && !stop.stop_requested(); ++i)
    {
        preset_thumbnail made;
        auto content = read_preset_file(files[i]);
        if (content && apply_preset(*std::move(content), *component))
        {
            // Brings the table up to date. The renderer keeps it while the component goes on to the next preset.
            component->notify({event_kind::render_begins});
            made.renderer = component->get_row_renderer();
            made.picture = grade_display(picture, *made.renderer);
        }
        const std::scoped_lock guard(done_mutex);
        done[i] = std::move(made);
    }
    component->terminate();
}

} // namespace ov1
