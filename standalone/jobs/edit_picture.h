// What the editor shows: a picture, a clip frame by frame, or the chart where there is neither.
#pragma once

#include "media/clips/clip_reader.h"
#include "shared/image.h"
#include "shared/result.h"

#include <memory>
#include <optional>
#include <string>

namespace ov1
{

class edit_picture
{
public:
    /// The chart.
    edit_picture();

    /// Reads a picture, or a clip's first frame, in the chart's place; on failure it stays.
    result<> open(const std::string& path);

    bool is_clip() const { return clip.has_value(); }
    /// 1 for a still picture, and for a clip that does not say.
    int get_frame_count() const;
    /// Shows another frame of the clip, 0..count - 1; on failure the one before stays.
    result<> read_frame(int frame);

    /// The picture before the grade, and an image alike for the graded one. Others after every open and read_frame.
    std::shared_ptr<image> get_source() const { return source; }
    std::shared_ptr<image> get_destination() const { return destination; }

private:
    void show(std::shared_ptr<image> picture);

    std::string path;
    std::optional<media::clip_reader> clip;
    std::shared_ptr<image> source;
    std::shared_ptr<image> destination;
};

} // namespace ov1
