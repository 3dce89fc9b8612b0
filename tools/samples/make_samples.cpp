// Draws the sample pictures: make_samples FOLDER writes landscape.png and memory_colours.png there.
#include "media/stills/encode_still.h"
#include "platform/atomic_file.h"
#include "tools/samples/landscape.h"
#include "tools/samples/memory_chart.h"

#include <cstdio>
#include <string>
#include <vector>

namespace
{

using namespace ov1;

/// One row of a picture that is a function of position; the height is 1. Four samples per pixel.
template <typename F>
std::vector<argb_float> drawn_row(std::size_t y, std::size_t width, std::size_t height, F&& colour)
{
    std::vector<argb_float> row(width);
    const float step = 1.0f / static_cast<float>(height);
    for (std::size_t x = 0; x < width; ++x)
    {
        argb_float& sum = row[x];
        // A rotated grid: edges that are nearly level or upright get four steps instead of two.
        for (const auto& [dx, dy] : {std::pair{0.25f, 0.375f}, {0.625f, 0.125f}, {0.375f, 0.875f}, {0.875f, 0.625f}})
        {
            const argb_float c = colour((static_cast<float>(x) + dx) * step, (static_cast<float>(y) + dy) * step);
            sum = {1.0f, sum.r + c.r / 4, sum.g + c.g / 4, sum.b + c.b / 4};
        }
    }
    return row;
}

template <typename F>
result<> write_picture(const std::string& path, std::size_t width, std::size_t height, F&& colour)
{
    media::still_info info;
    info.width = width;
    info.height = height;
    std::vector<argb_float> rows;
    const auto drawn_rows = [&](std::size_t y, std::size_t count)
    {
        rows.clear();
        for (std::size_t i = y; i < y + count; ++i)
        {
            const auto row = drawn_row(i, width, height, colour);
            rows.insert(rows.end(), row.begin(), row.end());
        }
        return rows.data();
    };
    const auto bytes = media::encode_still(path, info, drawn_rows);
    if (!bytes)
        return bytes.error();
    return replace_file(path, *bytes);
}

/// Whether the picture was written; a failure is reported.
template <typename F>
bool draw(const std::string& path, std::size_t width, std::size_t height, F&& colour)
{
    const auto written = write_picture(path, width, height, colour);
    if (!written)
        std::fprintf(stderr, "make_samples: %s: %s\n", path.c_str(), written.error().reason.c_str());
    return static_cast<bool>(written);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::fputs("usage: make_samples FOLDER\n", stderr);
        return 2;
    }
    const std::string folder = argv[1];
    constexpr std::size_t height = 800, width = static_cast<std::size_t>(height * ov1::landscape_aspect);
    const auto chart = [](float x, float y) { return ov1::memory_chart(x / ov1::landscape_aspect, y); };
    const bool done = draw(folder + "/landscape.png", width, height, ov1::landscape) &&
                      draw(folder + "/memory_colours.png", width, height, chart);
    return done ? 0 : 1;
}
