#include "standalone/jobs/edit_picture.h"

#include "media/stills/input_kind.h"
#include "media/stills/still_reader.h"
#include "standalone/jobs/media_problem.h"
#include "standalone/jobs/preview_picture.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace ov1
{

edit_picture::edit_picture() { show(make_test_chart()); }

void edit_picture::show(std::shared_ptr<image> picture)
{
    destination = make_image_like(*picture);
    source = std::move(picture);
}

bool edit_picture::open(const std::string& new_path, problem& why)
{
    path = new_path;
    const bool is_clip = media::input_kind_of(path) == media::input_kind::clip;
    media::clip_reader opened_clip;
    media::still_reader still;
    if (const auto opened = is_clip ? opened_clip.open(path, {}) : still.open(path); !opened)
    {
        why = problem_of(opened.error(), path);
        return false;
    }
    if (is_clip)
    {
        clip = std::move(opened_clip);
        return read_frame(0, why);
    }
    show(make_preview_image(still));
    return true;
}

int edit_picture::get_frame_count() const
{
    if (!clip)
        return 1;
    const std::uint64_t frames = clip->info().frames;
    return static_cast<int>(std::clamp<std::uint64_t>(frames, 1, std::numeric_limits<int>::max()));
}

bool edit_picture::read_frame(int frame, problem& why)
{
    const auto picture = clip ? clip->read_frame(static_cast<std::uint64_t>(frame)) : failure{};
    if (!picture)
    {
        why = problem_of(picture.error(), path);
        return false;
    }
    show(make_preview_image(*picture));
    return true;
}

} // namespace ov1
