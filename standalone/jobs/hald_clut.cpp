#include "standalone/jobs/hald_clut.h"

#include "media/stills/encode_still.h"

namespace ov1
{

namespace
{

constexpr std::size_t points = 64;
constexpr std::size_t side = 512; ///< points^3 pixels in a square

/// The ungraded colour of pixel i in reading order.
argb_float identity_pixel(std::size_t i)
{
    const auto code = [](std::size_t point) { return static_cast<float>(point) / static_cast<float>(points - 1); };
    return {1.0f, code(i % points), code(i / points % points), code(i / (points * points))};
}

} // namespace

result<std::vector<std::uint8_t>> make_hald_clut(const row_renderer& renderer)
{
    media::still_info info;
    info.width = info.height = side;
    info.depth = media::depth::u16;
    std::vector<argb_float> rows;
    const auto graded_rows = [&](std::size_t y, std::size_t count)
    {
        rows.resize(side * count);
        for (std::size_t i = 0; i < rows.size(); ++i)
            rows[i] = identity_pixel(y * side + i);
        renderer.render_row(y, rows.data(), rows.data(), rows.size());
        return rows.data();
    };
    return media::encode_still("hald.png", info, graded_rows);
}

} // namespace ov1
