#include "media/base/byte_view.h"
#include "media/stills/picture_facts.h"
#include "media/stills/tiff_tags.h"

#include <algorithm>
#include <array>

namespace ov1::media
{

namespace
{

/// The first directory of a TIFF file: whole numbers of single entries.
class directory
{
public:
    /// "MM" begins big-endian files, "II" little-endian ones.
    explicit directory(std::span<const std::uint8_t> file)
        : bytes(file, !file.empty() && file[0] == 'M')
        , start(bytes.u32(4))
        , count(start < file.size() ? bytes.u16(start) : 0)
    {
    }

    /// The first value of a tag of short or long numbers, or what is given in its absence.
    std::uint32_t value_of(std::uint32_t tag, std::uint32_t otherwise) const
    {
        for (std::size_t i = 0; i < count; ++i)
        {
            const std::size_t entry = start + 2 + i * tiff::entry_size;
            if (bytes.u16(entry) == tag)
                return first_value(entry);
        }
        return otherwise;
    }

    bool has_successor() const { return bytes.u32(start + 2 + count * tiff::entry_size) != 0; }

private:
    static constexpr std::uint32_t short_type = 3;

    /// Values of up to four bytes stand in the entry itself, others at the offset that it holds.
    std::uint32_t first_value(std::size_t entry) const
    {
        const bool is_short = bytes.u16(entry + 2) == short_type;
        const std::size_t size = std::size_t{bytes.u32(entry + 4)} * (is_short ? 2 : 4);
        const std::size_t at = size <= 4 ? entry + 8 : bytes.u32(entry + 8);
        return is_short ? bytes.u16(at) : bytes.u32(at);
    }

    byte_view bytes;
    std::size_t start;
    std::size_t count;
};

/// 1 for any number that the format does not define.
unsigned orientation_in(const directory& tags)
{
    const std::uint32_t value = tags.value_of(tiff::orientation_tag, 1);
    return value >= 1 && value <= 8 ? value : 1;
}

/// What libav 5.1 decodes rightly; some of the rest it takes for black.
std::string refusal_of(const directory& tags)
{
    constexpr std::array<std::uint32_t, 9> compressions{1, 2, 3, 4, 5, 8, 32773, 32946, 34925};
    constexpr std::array<std::uint32_t, 5> photometrics{0, 1, 2, 3, 6}; // grey both ways, RGB, palette, YCbCr
    constexpr std::uint32_t separated = 5;
    const auto among = [](const auto& list, std::uint32_t value)
    { return std::find(list.begin(), list.end(), value) != list.end(); };
    const std::uint32_t photometric = tags.value_of(tiff::photometric_tag, 2);
    const std::uint32_t sample_format = tags.value_of(tiff::sample_format_tag, 1);
    if (photometric == separated)
        return "CMYK: its colours depend on a printer's profile";
    if (!among(photometrics, photometric))
        return "its colours are neither grey, RGB nor YCbCr";
    if (sample_format != 1 && sample_format != 4)
        return "its samples are signed or floating numbers";
    if (tags.value_of(tiff::bits_tag, 1) > 16)
        return "its samples have more than 16 bits";
    if (tags.value_of(tiff::tile_width_tag, 0) != 0)
        return "it is laid out in tiles";
    if (!among(compressions, tags.value_of(tiff::compression_tag, 1)))
        return "its compression is not known";
    return {};
}

} // namespace

unsigned exif_orientation(std::span<const std::uint8_t> exif) { return orientation_in(directory(exif)); }

picture_facts tiff_facts(std::span<const std::uint8_t> file)
{
    const directory tags(file);
    picture_facts facts;
    facts.orientation = orientation_in(tags);
    facts.has_exif = tags.value_of(tiff::exif_tag, 0) != 0;
    facts.premultiplied = tags.value_of(tiff::extra_samples_tag, 0) == tiff::associated_alpha;
    facts.refusal = refusal_of(tags);
    facts.full_range = tags.value_of(tiff::reference_tag, 0) == 0; // the black reference of luma
    if (tags.has_successor())
        facts.warnings.emplace_back("the file holds more pages: only the first is used");
    return facts;
}

} // namespace ov1::media
