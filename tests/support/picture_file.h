// A picture of the editor, as the build wrote it.
#pragma once

#include "media/stills/still_reader.h"

#include <gtest/gtest.h>

namespace ov1
{

class picture_file
{
public:
    explicit picture_file(const std::string& name)
    {
        media::still_reader reader;
        if (const auto read = reader.open(std::string(VERIDIAL_SHARE_DIR) + "/" + name); !read)
        {
            ADD_FAILURE() << name << ": " << read.error().reason;
            return;
        }
        width = static_cast<int>(reader.info().width);
        height = static_cast<int>(reader.info().height);
        pixels.resize(reader.info().width * reader.info().height);
        reader.read_rows(0, reader.info().height, pixels.data());
    }

    /// Clear outside the picture.
    argb_float at_pixel(int x, int y) const
    {
        const bool inside = x >= 0 && x < width && y >= 0 && y < height;
        return inside ? pixels[static_cast<std::size_t>(y * width + x)] : argb_float{0, 0, 0, 0};
    }

    int width = 0, height = 0;

private:
    std::vector<argb_float> pixels;
};

} // namespace ov1
