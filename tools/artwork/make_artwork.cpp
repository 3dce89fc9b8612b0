// Draws the editor's pads and arcs: make_artwork FOLDER writes their pictures there. Look tables are read from the
// resources.
#include "media/stills/encode_still.h"
#include "platform/atomic_file.h"
#include "tools/artwork/arc_pictures.h"
#include "tools/artwork/pad_pictures.h"

#include <cstdio>

namespace
{

using namespace ov1;

result<> write_picture(const std::string& path, std::size_t width, const std::vector<argb_float>& pixels)
{
    media::still_info info;
    info.width = width;
    info.height = pixels.size() / width;
    info.alpha = media::alpha_kind::straight;
    const auto bytes =
        media::encode_still(path, info, [&](std::size_t y, std::size_t) { return pixels.data() + y * width; });
    if (!bytes)
        return bytes.error();
    return replace_file(path, *bytes);
}

/// Whether the picture was written; a failure is reported.
bool made(const std::string& path, std::size_t width, const std::vector<argb_float>& pixels)
{
    const auto written = write_picture(path, width, pixels);
    if (!written)
        std::fprintf(stderr, "make_artwork: %s: %s\n", path.c_str(), written.error().reason.c_str());
    return static_cast<bool>(written);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::fputs("usage: make_artwork FOLDER\n", stderr);
        return 2;
    }
    const std::string folder = std::string(argv[1]) + "/";
    engine_colours engine;
    for (const pad_picture& pad : make_pad_pictures(engine))
        if (!made(folder + pad.name, pad_pixels, draw_pad(pad)))
            return 1;
    for (const arc_picture& arc : make_arc_pictures(engine))
        if (!made(folder + arc.name, arc_width_pixels, draw_arc(arc)))
            return 1;
    return 0;
}
