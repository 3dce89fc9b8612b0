// What the editor shows: a picture, or the chart where there is none.
#pragma once

#include "command_line/problem.h"
#include "shared/image.h"

#include <memory>
#include <string>

namespace ov1
{

class edit_picture
{
public:
    /// The chart.
    edit_picture();

    /// Reads a picture in its place; on failure it stays.
    [[nodiscard]] bool open(const std::string& path, problem& why);

    /// 1 for a still picture.
    int get_frame_count() const { return 1; }
    [[nodiscard]] bool read_frame(int frame, problem& why);

    /// The picture before the grade, and an image alike for the graded one. Others after every open and read_frame.
    std::shared_ptr<image> get_source() const { return source; }
    std::shared_ptr<image> get_destination() const { return destination; }

private:
    void show(std::shared_ptr<image> picture);

    std::shared_ptr<image> source;
    std::shared_ptr<image> destination;
};

} // namespace ov1
