#include "media/stills/encoded_fixes.h"

#include "media/base/byte_view.h"
#include "media/stills/tiff_tags.h"

namespace ov1::media
{

namespace
{

constexpr std::uint32_t undefined_type = 7;
constexpr std::uint32_t old_deflate = 32946; // what libav writes
constexpr std::uint32_t adobe_deflate = 8;   // the same stream; more readers know this number
constexpr std::size_t dpx_transfer_at = 801;
constexpr std::uint16_t dpx_video = 0x0404; // transfer and colorimetric: unspecified video

/// The offset of a single short value in the first directory of a little-endian TIFF file; 0 if there is none.
std::size_t place_of(const byte_view& view, std::uint32_t tag)
{
    const std::size_t directory = view.u32(4);
    for (std::size_t i = 0; i < view.u16(directory); ++i)
    {
        const std::size_t entry = directory + 2 + i * tiff::entry_size;
        if (view.u16(entry) == tag && entry + tiff::entry_size <= view.size())
            return entry + 8;
    }
    return 0;
}

/// Writes the lowest bytes of a number, little-endian as libav writes TIFF.
void put(std::vector<std::uint8_t>& file, std::size_t at, std::uint32_t value, std::size_t bytes)
{
    for (std::size_t i = 0; i < bytes; ++i)
        file[at + i] = static_cast<std::uint8_t>(value >> 8 * i);
}

/// Adds the profile to a file that ends with its only directory: an entry in the order of tags, and the bytes after it.
void add_profile(std::vector<std::uint8_t>& file, const std::vector<std::uint8_t>& icc)
{
    const byte_view view(file, false);
    const std::size_t directory = view.u32(4);
    const std::uint32_t count = view.u16(directory);
    const std::size_t end = directory + 2 + count * tiff::entry_size;
    if (end + 4 != file.size() || view.u32(end) != 0)
        return;
    std::size_t entry = directory + 2;
    while (entry < end && view.u16(entry) < tiff::icc_tag)
        entry += tiff::entry_size;
    put(file, directory, count + 1, 2);
    file.insert(file.begin() + static_cast<std::ptrdiff_t>(entry), tiff::entry_size, 0);
    put(file, entry, tiff::icc_tag, 2);
    put(file, entry + 2, undefined_type, 2);
    put(file, entry + 4, static_cast<std::uint32_t>(icc.size()), 4);
    file.resize(file.size() + file.size() % 2); // values begin at even places
    put(file, entry + 8, static_cast<std::uint32_t>(file.size()), 4);
    file.insert(file.end(), icc.begin(), icc.end());
}

void fix_tiff(std::vector<std::uint8_t>& file, const still_info& info)
{
    const byte_view view(file, false);
    if (const std::size_t at = place_of(view, tiff::compression_tag); at != 0 && view.u16(at) == old_deflate)
        put(file, at, adobe_deflate, 2);
    if (const std::size_t at = place_of(view, tiff::extra_samples_tag);
        at != 0 && info.alpha == alpha_kind::premultiplied)
        put(file, at, tiff::associated_alpha, 2);
    if (!info.icc.empty() && place_of(view, tiff::icc_tag) == 0)
        add_profile(file, info.icc);
}

void fix_dpx(std::vector<std::uint8_t>& file, const still_info& info)
{
    const std::uint16_t transfer = info.dpx_transfer != 0 ? info.dpx_transfer : dpx_video;
    if (file.size() < dpx_transfer_at + 2)
        return;
    file[dpx_transfer_at] = static_cast<std::uint8_t>(transfer >> 8);
    file[dpx_transfer_at + 1] = static_cast<std::uint8_t>(transfer);
}

void fix_png(std::vector<std::uint8_t>& file, const still_info& info)
{
    constexpr std::size_t after_header = 8 + 25; // signature and IHDR
    if (file.size() >= after_header)
        file.insert(file.begin() + after_header, info.png_color.begin(), info.png_color.end());
}

} // namespace

void fix_encoded(std::vector<std::uint8_t>& file, const still_info& info)
{
    if (info.format == still_format::tiff)
        fix_tiff(file, info);
    else if (info.format == still_format::dpx)
        fix_dpx(file, info);
    else if (info.format == still_format::png)
        fix_png(file, info);
}

} // namespace ov1::media
