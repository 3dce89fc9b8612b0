#include "media/stills/encode_still.h"

#include "media/stills/still_writer.h"

#include <algorithm>

namespace ov1::media
{

result<std::vector<std::uint8_t>> encode_still(const std::string& path, const still_info& info, const row_source& rows)
{
    still_writer writer;
    if (const auto created = writer.create(path, info, {}); !created)
        return created.error();
    for (std::size_t y = 0; y < info.height; y += still_writer::row_multiple)
    {
        const std::size_t count = std::min(still_writer::row_multiple, info.height - y);
        writer.write_rows(y, count, rows(y, count));
    }
    return writer.finish();
}

} // namespace ov1::media
