#include "standalone/jobs/edit_picture.h"

#include "media/stills/input_kind.h"
#include "media/stills/still_reader.h"
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

result<> edit_picture::open(const std::string& new_path)
{
    path = new_path;
    // Both readers are locals: only a clip that opened completely replaces the one before.
    const bool is_clip = media::input_kind_of(path) == media::input_kind::clip;
    media::clip_reader opened_clip;
    media::still_reader still;
    if (const auto opened = is_clip ? opened_clip.open(path, {}) : still.open(path); !opened)
        return about(path, opened.error());
    if (is_clip)
    {
        clip = std::move(opened_clip);
        return read_frame(0);
    }
    show(make_preview_image(still));
    return {};
}

int edit_picture::get_frame_count() const
{
    if (!clip)
        return 1;
    // 0 means unknown: the clip then counts as one frame.
    const std::uint64_t frames = clip->info().frames;
    return static_cast<int>(std::clamp<std::uint64_t>(frames, 1, std::numeric_limits<int>::max()));
}

result<> edit_picture::read_frame(int frame)
{
    const auto picture = clip ? clip->read_frame(static_cast<std::uint64_t>(frame)) : failure{};
    if (!picture)
        return about(path, picture.error());
    show(make_preview_image(*picture));
    return {};
}

} // namespace ov1
