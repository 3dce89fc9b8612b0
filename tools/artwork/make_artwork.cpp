// Draws the editor's pads: make_artwork FOLDER writes their pictures there. Look tables are read from the resources.
#include "artwork/pad_geometry.h"
#include "artwork/pad_pictures.h"
#include "media/still_writer.h"
#include "platform/atomic_file.h"

#include <cstdio>

namespace
{

using namespace ov1;

bool write_picture(const std::string& path, const std::vector<argb_float>& pixels)
{
    media::still_info info;
    info.width = info.height = pad_pixels;
    info.alpha = media::alpha_kind::straight;
    media::still_writer writer;
    media::error why;
    std::vector<std::uint8_t> bytes;
    if (writer.create(path, info, {}, why))
    {
        writer.write_rows(0, pad_pixels, pixels.data());
        if (writer.finish(bytes, why) && replace_file(path, bytes, why.reason))
            return true;
    }
    std::fprintf(stderr, "make_artwork: %s: %s\n", path.c_str(), why.reason.c_str());
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::fputs("usage: make_artwork FOLDER\n", stderr);
        return 2;
    }
    engine_colours engine;
    for (const pad_picture& pad : make_pad_pictures(engine))
        if (!write_picture(std::string(argv[1]) + "/" + pad.name, draw_pad(pad)))
            return 1;
    return 0;
}
