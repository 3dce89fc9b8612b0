#include "standalone/sheets/sheet_layout.h"

#include <algorithm>

namespace ov1
{

sheet_layout lay_out_sheet(std::size_t cells, std::size_t columns, std::size_t source_width, std::size_t source_height,
                           std::size_t max_width)
{
    columns = std::clamp<std::size_t>(columns, 1, std::max<std::size_t>(cells, 1));
    // The width left for one picture: each column brings a margin on its left, the last one on its right too.
    const std::size_t room = (max_width - sheet_layout::margin) / columns - sheet_layout::margin;
    const std::size_t width = std::min(source_width, room);
    // The limit keeps the sheet of a very tall picture from growing without bounds.
    const double ratio = static_cast<double>(source_height) / static_cast<double>(source_width);
    const auto height =
        std::clamp<std::size_t>(static_cast<std::size_t>(static_cast<double>(width) * ratio + 0.5), 1, 2 * room);
    return {columns, (cells + columns - 1) / columns, width, height};
}

} // namespace ov1
