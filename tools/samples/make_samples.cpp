// Draws the sample pictures: make_samples FOLDER writes landscape.png and memory_colours.png there,
// make_samples --thumbnails FOLDER the effect's two thumbnails, fcpx_small.png and fcpx_large.png.
#include "media/still_writer.h"
#include "platform/atomic_file.h"
#include "samples/landscape.h"
#include "samples/memory_chart.h"

#include <cstdio>
#include <string>
#include <vector>

namespace
{

using namespace ov1;

/// Draws a picture from a function of place; height 1, four samples a pixel.
template <typename F>
std::vector<argb_float> drawn_row(std::size_t y, std::size_t width, std::size_t height, F&& colour)
{
    std::vector<argb_float> row(width);
    const float step = 1.0f / static_cast<float>(height);
    for (std::size_t x = 0; x < width; ++x)
    {
        argb_float& sum = row[x];
        for (const auto& [dx, dy] : {std::pair{0.25f, 0.375f}, {0.625f, 0.125f}, {0.375f, 0.875f}, {0.875f, 0.625f}})
        {
            const argb_float c = colour((static_cast<float>(x) + dx) * step, (static_cast<float>(y) + dy) * step);
            sum = {1.0f, sum.r + c.r / 4, sum.g + c.g / 4, sum.b + c.b / 4};
        }
    }
    return row;
}

template <typename F>
bool draw(const std::string& path, std::size_t width, std::size_t height, F&& colour)
{
    media::still_info info;
    info.width = width;
    info.height = height;
    media::still_writer writer;
    media::error why;
    std::vector<std::uint8_t> bytes;
    if (writer.create(path, info, {}, why))
    {
        for (std::size_t y = 0; y < height; y += media::still_writer::row_multiple)
        {
            std::vector<argb_float> rows;
            for (std::size_t i = y; i < y + media::still_writer::row_multiple && i < height; ++i)
            {
                const auto row = drawn_row(i, width, height, colour);
                rows.insert(rows.end(), row.begin(), row.end());
            }
            writer.write_rows(y, rows.size() / width, rows.data());
        }
        if (writer.finish(bytes, why) && replace_file(path, bytes, why.reason))
            return true;
    }
    std::fprintf(stderr, "make_samples: %s: %s\n", path.c_str(), why.reason.c_str());
    return false;
}

bool draw_landscape(const std::string& path, std::size_t height)
{
    const auto width = static_cast<std::size_t>(static_cast<float>(height) * landscape_aspect);
    return draw(path, width, height, landscape);
}

bool draw_samples(const std::string& folder)
{
    constexpr std::size_t height = 800;
    constexpr auto width = static_cast<std::size_t>(height * landscape_aspect);
    const auto chart = [](float x, float y) { return memory_chart(x / landscape_aspect, y); };
    return draw_landscape(folder + "/landscape.png", height) &&
           draw(folder + "/memory_colours.png", width, height, chart);
}

bool draw_thumbnails(const std::string& folder)
{
    return draw_landscape(folder + "/fcpx_small.png", 64) && draw_landscape(folder + "/fcpx_large.png", 256);
}

} // namespace

int main(int argc, char** argv)
{
    const bool thumbnails = argc == 3 && std::string(argv[1]) == "--thumbnails";
    if (argc != 2 && !thumbnails)
    {
        std::fputs("usage: make_samples [--thumbnails] FOLDER\n", stderr);
        return 2;
    }
    const std::string folder = argv[argc - 1];
    return (thumbnails ? draw_thumbnails(folder) : draw_samples(folder)) ? 0 : 1;
}
