#include "host/simulator/verbs/picture_file.h"

#include "command_line/file_output.h"
#include "media/stills/encode_still.h"

#include <algorithm>

namespace ov1
{

result<picture_file> read_picture(const std::string& path)
{
    picture_file file;
    if (const auto opened = file.reader.open(path); !opened)
        return about(path, opened.error());
    const media::still_info& info = file.reader.info();
    file.picture = rgba_picture(info.width, info.height);
    // One row at a time: only the host's picture is kept in memory as a whole.
    std::vector<argb_float> row(info.width);
    for (std::size_t y = 0; y < info.height; ++y)
    {
        file.reader.read_rows(y, 1, row.data());
        for (std::size_t x = 0; x < info.width; ++x)
        {
            // From a, r, g, b to the host's order.
            const float rgba[] = {row[x].r, row[x].g, row[x].b, row[x].a};
            std::copy_n(rgba, 4, file.picture.pixel(x, y));
        }
    }
    return file;
}

result<> write_picture(const std::string& path, const picture_file& like, const rgba_picture& picture, bool overwrite)
{
    std::vector<argb_float> rows;
    const auto rows_with_alpha = [&](std::size_t y, std::size_t count)
    {
        rows.resize(count * picture.width);
        for (std::size_t i = 0; i < rows.size(); ++i)
        {
            const float* const p = picture.pixel(i % picture.width, y + i / picture.width);
            // The alpha of the source; see the header.
            rows[i] = {like.picture.pixel(i % picture.width, y + i / picture.width)[3], p[0], p[1], p[2]};
        }
        return rows.data();
    };
    const auto bytes = media::encode_still(path, like.reader.info(), rows_with_alpha);
    if (!bytes)
        return about(path, bytes.error());
    return write_output(path, *bytes, overwrite);
}

} // namespace ov1
