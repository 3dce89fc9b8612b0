// What the editor shows: a picture, a frame of a clip, or a colour chart where there is neither.
#pragma once

#include "media/clips/clip_reader.h"
#include "shared/image.h"
#include "shared/result.h"

#include <memory>
#include <optional>
#include <string>

namespace ov1
{

/// One thread, the editor's. The images are shared with the view, which may show them after they are replaced here.
class edit_picture
{
public:
    /// Begins with the chart.
    edit_picture();

    /// Replaces the chart by a picture, or by a clip's first frame; a failure keeps it.
    result<> open(const std::string& path);

    bool is_clip() const { return clip.has_value(); }
    /// 1 for a still picture, and for a clip whose length is unknown.
    int get_frame_count() const;
    /// Replaces the frame of the clip by another, 0..count - 1; a failure keeps it.
    /// Fails with the path as the subject. A still picture has no frames to read.
    result<> read_frame(int frame);

    /// The picture before the grade, and an image of the same size for the graded one. open and read_frame replace
    /// both.
    /// Never null; argb_f32 with the first row at the top.
    std::shared_ptr<image> get_source() const { return source; }
    std::shared_ptr<image> get_destination() const { return destination; }

private:
    void show(std::shared_ptr<image> picture);

    std::string path;
    // Kept open: opening a clip for each frame would be slow.
    std::optional<media::clip_reader> clip;
    std::shared_ptr<image> source;
    std::shared_ptr<image> destination;
};

} // namespace ov1
