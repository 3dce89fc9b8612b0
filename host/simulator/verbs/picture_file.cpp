#include "host/simulator/verbs/picture_file.h"

#include "media/stills/still_writer.h"
#include "platform/atomic_file.h"

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
    std::vector<argb_float> row(info.width);
    for (std::size_t y = 0; y < info.height; ++y)
    {
        file.reader.read_rows(y, 1, row.data());
        for (std::size_t x = 0; x < info.width; ++x)
        {
            const float rgba[] = {row[x].r, row[x].g, row[x].b, row[x].a};
            std::copy_n(rgba, 4, file.picture.pixel(x, y));
        }
    }
    return file;
}

result<> write_picture(const std::string& path, const picture_file& like, const rgba_picture& picture, bool overwrite)
{
    media::still_writer writer;
    if (const auto created = writer.create(path, like.reader.info(), {}); !created)
        return about(path, created.error());
    constexpr std::size_t step = media::still_writer::row_multiple;
    std::vector<argb_float> rows;
    for (std::size_t y = 0; y < picture.height; y += step)
    {
        const std::size_t count = std::min(step, picture.height - y);
        rows.resize(count * picture.width);
        for (std::size_t i = 0; i < rows.size(); ++i)
        {
            const float* const p = picture.pixel(i % picture.width, y + i / picture.width);
            rows[i] = {like.picture.pixel(i % picture.width, y + i / picture.width)[3], p[0], p[1], p[2]};
        }
        writer.write_rows(y, count, rows.data());
    }
    const auto bytes = writer.finish();
    if (!bytes)
        return about(path, bytes.error());
    const auto written = overwrite ? replace_file(path, *bytes) : create_file(path, *bytes);
    if (!written)
        return about(path, written.error());
    return {};
}

} // namespace ov1
