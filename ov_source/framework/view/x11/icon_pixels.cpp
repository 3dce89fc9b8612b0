#include "framework/view/x11/icon_pixels.h"

#include "platform/iutils.h"

#include "vstgui/lib/cpoint.h"
#include "vstgui/lib/platform/iplatformbitmap.h"
#include "vstgui/lib/platform/platformfactory.h"

namespace ov1
{

namespace
{

/// On Linux the toolkit's pixels are premultiplied, blue first.
std::uint32_t straight(const std::uint8_t* bgra)
{
    const std::uint32_t alpha = bgra[3];
    // Rounded to the nearest code; a transparent pixel has no colour.
    const auto divided = [&](std::uint32_t premultiplied)
    { return alpha == 0 ? 0 : (premultiplied * 255 + alpha / 2) / alpha; };
    return alpha << 24 | divided(bgra[2]) << 16 | divided(bgra[1]) << 8 | divided(bgra[0]);
}

} // namespace

std::vector<std::uint32_t> read_icon_pixels(const std::string& name)
{
    // A missing icon is no failure: the desktop shows its own.
    std::vector<std::uint8_t> file;
    if (!iutils::get_instance().get_resource(name + ".png", file))
        return {};
    const auto picture =
        VSTGUI::getPlatformFactory().createBitmapFromMemory(file.data(), static_cast<std::uint32_t>(file.size()));
    const auto pixels = picture ? picture->lockPixels(false) : nullptr;
    if (!pixels || picture->getSize().x < 1 || picture->getSize().y < 1)
        return {};
    const auto width = static_cast<std::uint32_t>(picture->getSize().x);
    const auto height = static_cast<std::uint32_t>(picture->getSize().y);
    // The list begins with the size, as EWMH defines it.
    std::vector<std::uint32_t> words = {width, height};
    for (std::uint32_t y = 0; y < height; ++y)
        for (std::uint32_t x = 0; x < width; ++x)
            words.push_back(straight(pixels->getAddress() + std::size_t{y} * pixels->getBytesPerRow() + x * 4));
    return words;
}

} // namespace ov1
