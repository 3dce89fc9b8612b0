#include "media/base/byte_view.h"
#include "media/stills/picture_facts.h"

#include <cstring>

namespace ov1::media
{

namespace
{

using namespace std::string_view_literals;

constexpr std::uint32_t end_of_image = 0xD9;
constexpr std::uint32_t start_of_scan = 0xDA;
constexpr std::uint32_t app1 = 0xE1;

bool is_frame_header(std::uint32_t marker)
{
    const bool other_table = marker == 0xC4 || marker == 0xC8 || marker == 0xCC; // DHT, JPG, DAC
    return marker >= 0xC0 && marker <= 0xCF && !other_table;
}

/// The next marker in coded data, from a place on: 0xFF before anything but a stuffed zero, a fill byte or a restart.
std::size_t after_coded_data(std::span<const std::uint8_t> file, std::size_t at)
{
    while (at + 1 < file.size())
    {
        const auto* found = static_cast<const std::uint8_t*>(std::memchr(file.data() + at, 0xFF, file.size() - at - 1));
        if (found == nullptr)
            break;
        at = static_cast<std::size_t>(found - file.data());
        const std::uint8_t code = file[at + 1];
        const bool restart = code >= 0xD0 && code <= 0xD7;
        if (code != 0 && code != 0xFF && !restart)
            return at;
        ++at;
    }
    return file.size();
}

} // namespace

/// Walks the segments: 0xFF, marker, length in two bytes that count themselves, data. Without an end of image the file
/// is truncated, although libav may decode a part of it.
picture_facts jpeg_facts(std::span<const std::uint8_t> file)
{
    picture_facts facts;
    facts.truncated = true;
    const byte_view bytes(file);
    std::size_t at = 2; // after the start of image
    while (at + 4 <= bytes.size() + 2 && bytes.u8(at) == 0xFF)
    {
        const std::uint32_t marker = bytes.u8(at + 1);
        if (marker == 0xFF) // a fill byte
        {
            ++at;
            continue;
        }
        if (marker == end_of_image)
        {
            facts.truncated = false;
            break;
        }
        const std::size_t length = bytes.u16(at + 2);
        if (marker == app1 && bytes.has(at + 4, "Exif\0\0"sv))
        {
            facts.orientation = exif_orientation(bytes.part(at + 10, length - std::min<std::size_t>(length, 8)));
            facts.has_exif = true;
        }
        else if (is_frame_header(marker) && bytes.u8(at + 9) > 3)
            facts.refusal = "CMYK: its colours depend on a printer's profile";
        at += 2 + std::max<std::size_t>(length, 2);
        if (marker == start_of_scan)
            at = after_coded_data(file, at);
    }
    return facts;
}

} // namespace ov1::media
