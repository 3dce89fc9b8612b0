#include "editor/controls/style/bitmap_pixels.h"

#include <cstring>

namespace ov1
{

void set_pixels(VSTGUI::CBitmap& bitmap, std::span<const std::uint32_t> pixels)
{
    const auto access = bitmap.getPlatformBitmap()->lockPixels(true);
    if (!access)
        return;
    const auto width = static_cast<std::size_t>(bitmap.getPlatformBitmap()->getSize().x);
    std::uint8_t* row = access->getAddress(); // the toolkit's rows may be padded
    for (; pixels.size() >= width && width > 0; pixels = pixels.subspan(width), row += access->getBytesPerRow())
        std::memcpy(row, pixels.data(), width * sizeof(std::uint32_t));
}

} // namespace ov1
