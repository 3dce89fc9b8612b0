#include "media/stills/picture_facts.h"

#include "media/base/byte_view.h"

namespace ov1::media
{

namespace
{

constexpr std::size_t signature_size = 8;
constexpr std::size_t frame_size = 12; // length, type and checksum around a chunk's data

/// Transfer characteristics as numbered by ITU-T H.273.
std::optional<transfer> transfer_of_h273(std::uint32_t code)
{
    switch (code)
    {
    case 8:
        return transfer::linear;
    case 16:
        return transfer::pq;
    case 18:
        return transfer::hlg;
    default:
        return std::nullopt;
    }
}

} // namespace

/// Walks the chunks: length and type of four bytes each, data, checksum. The decoder checks the checksums.
picture_facts png_facts(std::span<const std::uint8_t> file)
{
    picture_facts facts;
    facts.truncated = true;
    const byte_view bytes(file);
    bool linear_gamma = false;
    bool gamma_counts = true; // gAMA yields to cICP, iCCP and sRGB
    constexpr std::size_t longest_color_chunk = 32;
    for (std::size_t at = signature_size; at + frame_size <= bytes.size();)
    {
        const std::size_t length = bytes.u32(at);
        const std::size_t type = at + 4;
        const std::size_t data = at + 8;
        if (bytes.has(type, "eXIf"))
        {
            facts.orientation = exif_orientation(bytes.part(data, length));
            facts.has_exif = true;
        }
        else if (bytes.has(type, "acTL"))
            facts.warnings.emplace_back("the picture is animated: only its first image is used");
        else if (bytes.has(type, "gAMA"))
            linear_gamma = bytes.u32(data) == 100000; // the exponent 1, in 1/100,000
        else if (bytes.has(type, "cICP"))
            facts.transfer = transfer_of_h273(bytes.u8(data + 1));
        else if (bytes.has(type, "IEND"))
            facts.truncated = false;
        const bool of_color =
            bytes.has(type, "cICP") || bytes.has(type, "sRGB") || bytes.has(type, "gAMA") || bytes.has(type, "cHRM");
        // Kept whole, with length and checksum, so that they can be written as they are.
        if (of_color && length <= longest_color_chunk)
        {
            const auto chunk = bytes.part(at, frame_size + length);
            facts.png_color.insert(facts.png_color.end(), chunk.begin(), chunk.end());
        }
        gamma_counts = gamma_counts && !bytes.has(type, "cICP") && !bytes.has(type, "iCCP") && !bytes.has(type, "sRGB");
        at += frame_size + length;
    }
    if (linear_gamma && gamma_counts)
        facts.transfer = transfer::linear;
    return facts;
}

} // namespace ov1::media
