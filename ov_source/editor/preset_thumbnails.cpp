#include "editor/preset_thumbnails.h"

#include "framework/chost_v1.h"
#include "framework/create_ccomponent.h"
#include "framework/icomponent_v1.h"
#include "platform/rows.h"
#include "presets/preset_reader.h"
#include "shared/argb_float.h"

#include <utility>

namespace ov1
{

namespace
{

void grade_row(const std::uint32_t* from, std::uint32_t* to, std::uint32_t width, std::size_t y,
               const row_renderer& renderer, std::vector<argb_float>& row)
{
    constexpr float code = 1.0f / 255.0f;
    row.resize(width);
    for (std::uint32_t x = 0; x < width; ++x)
        row[x] = {1.0f, red_of(from[x]) * code, green_of(from[x]) * code, blue_of(from[x]) * code};
    renderer.render_row(y, row.data(), row.data(), width);
    convert_row_to_display(row.data(), to, width);
}

} // namespace

display_picture grade_picture(const display_picture& picture, const row_renderer& renderer)
{
    display_picture graded{picture.width, picture.height, std::vector<std::uint32_t>(picture.pixels.size())};
    const auto grade_rows = [&](std::size_t first, std::size_t end)
    {
        std::vector<argb_float> row;
        for (std::size_t y = first; y < end; ++y)
            grade_row(picture.row(static_cast<std::uint32_t>(y)), graded.pixels.data() + y * picture.width,
                      picture.width, y, renderer, row);
    };
    for_each_picture_piece(picture.width, picture.height, 0, grade_rows);
    return graded;
}

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
    const auto component = create_ccomponent();
    component->initialize(std::make_shared<chost_v1>(component));
    for (std::size_t i = 0; i < files.size() && !stop.stop_requested(); ++i)
    {
        preset_thumbnail made;
        preset_content content;
        std::string reason;
        if (read_preset_file(files[i], content, reason) && apply_preset(content, *component, reason))
        {
            component->notify({event_kind::render_begins});
            made.renderer = component->get_row_renderer();
            made.picture = grade_picture(picture, *made.renderer);
        }
        const std::scoped_lock guard(done_mutex);
        done[i] = std::move(made);
    }
    component->terminate();
}

} // namespace ov1
