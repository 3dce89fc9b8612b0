#include "editor/preview/display_grade.h"

#include "platform/rows.h"
#include "shared/argb_float.h"

#include <vector>

namespace ov1
{

namespace
{

/// row is scratch memory.
void grade_row(const std::uint32_t* from, std::uint32_t* to, std::uint32_t width, std::size_t y,
               const row_renderer& renderer, std::vector<argb_float>& row)
{
    constexpr float code = 1.0f / 255.0f;
    row.resize(width);
    for (std::uint32_t x = 0; x < width; ++x)
        // Pixels of the screen are opaque.
        row[x] = {1.0f, red_of(from[x]) * code, green_of(from[x]) * code, blue_of(from[x]) * code};
    renderer.render_row(y, row.data(), row.data(), width);
    convert_row_to_display(row.data(), to, width);
}

} // namespace

display_picture grade_display(const display_picture& picture, const row_renderer& renderer)
{
    display_picture graded{picture.width, picture.height, std::vector<std::uint32_t>(picture.pixels.size())};
    const auto grade_rows = [&](std::size_t first, std::size_t end)
    {
        // One row for each piece: pieces run on several cores at once.
        std::vector<argb_float> row;
        for (std::size_t y = first; y < end; ++y)
            grade_row(picture.row(static_cast<std::uint32_t>(y)), graded.pixels.data() + y * picture.width,
                      picture.width, y, renderer, row);
    };
    for_each_picture_piece(picture.width, picture.height, 0, grade_rows);
    return graded;
}

} // namespace ov1
