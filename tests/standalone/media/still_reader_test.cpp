#include "media_files.h"

#include <span>
#include <string_view>

namespace ov1::media
{
namespace
{

using namespace std::string_view_literals;

class still_reading : public media_test
{
};

std::uint32_t png_checksum(std::span<const std::uint8_t> bytes)
{
    std::uint32_t crc = 0xFFFFFFFFu;
    for (const std::uint8_t byte : bytes)
    {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320u : 0);
    }
    return ~crc;
}

void put_u32(file_bytes& out, std::uint32_t value)
{
    for (const int shift : {24, 16, 8, 0})
        out.push_back(static_cast<std::uint8_t>(value >> shift));
}

/// Puts a chunk behind a PNG's header.
file_bytes with_chunk(file_bytes png, std::string_view type, std::string_view data)
{
    file_bytes chunk;
    put_u32(chunk, static_cast<std::uint32_t>(data.size()));
    chunk.insert(chunk.end(), type.begin(), type.end());
    chunk.insert(chunk.end(), data.begin(), data.end());
    put_u32(chunk, png_checksum(std::span(chunk).subspan(4)));
    png.insert(png.begin() + 33, chunk.begin(), chunk.end());
    return png;
}

/// Sets a tag of a little-endian TIFF to a single short, in the order of the tags, as the format has it.
/// The directory is the file's end.
file_bytes with_entry(file_bytes tiff, std::uint16_t tag, std::uint8_t value)
{
    const std::size_t directory = tiff[4] | tiff[5] << 8 | tiff[6] << 16;
    const auto tag_at = [&](std::size_t at) { return tiff[at] | tiff[at + 1] << 8; };
    std::size_t at = directory + 2;
    while (at + 12 <= tiff.size() - 4 && tag_at(at) < tag)
        at += 12;
    const file_bytes entry{
        static_cast<std::uint8_t>(tag), static_cast<std::uint8_t>(tag >> 8), 3, 0, 1, 0, 0, 0, value, 0, 0, 0};
    if (at + 12 <= tiff.size() - 4 && tag_at(at) == tag)
        std::copy(entry.begin(), entry.end(), tiff.begin() + static_cast<std::ptrdiff_t>(at));
    else
    {
        tiff.insert(tiff.begin() + static_cast<std::ptrdiff_t>(at), entry.begin(), entry.end());
        ++tiff[directory];
    }
    return tiff;
}

/// An Exif block, big-endian, that holds an orientation alone.
std::string exif_of(char orientation)
{
    return std::string("MM\0\x2A\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0"sv) + orientation + std::string(6, '\0');
}

file_bytes plain(const std::string& name, std::size_t width = 3, std::size_t height = 2)
{
    rows pixels(width * height);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = {1, static_cast<float>(i % 8) * 0.1f, 0.5f, 0.9f};
    return encoded(name, picture_info(width, height, depth::u16), pixels);
}

/// The letters a to f by the red of plain().
std::string letters(const still_reader& reader)
{
    std::string text;
    for (std::size_t y = 0; y < reader.info().height; ++y)
    {
        rows row(reader.info().width);
        reader.read_rows(y, 1, row.data());
        for (const argb_float& c : row)
            text += static_cast<char>('a' + std::lround(c.r * 10));
        text += '/';
    }
    return text;
}

TEST_F(still_reading, every_orientation_comes_upright)
{
    // Stored as abc over def; the number says which side of the upright picture the stored top and left are.
    const char* upright[] = {"abc/def/",  "cba/fed/",  "fed/cba/",  "def/abc/",
                             "ad/be/cf/", "da/eb/fc/", "fc/eb/da/", "cf/be/ad/"};
    const unsigned dpx_numbers[] = {0, 1, 3, 2, 4, 5, 7, 6};
    for (unsigned orientation = 1; orientation <= 8; ++orientation)
    {
        SCOPED_TRACE(orientation);
        const char* expected = upright[orientation - 1];
        const file_bytes tiff = with_entry(plain("a.tif"), 274, static_cast<std::uint8_t>(orientation));
        const still_reader reader = opened(save("a.tif", tiff));
        EXPECT_EQ(reader.info().orientation, orientation);
        EXPECT_EQ(letters(reader), expected) << "row by row";
        rows at_once(6);
        reader.read_rows(0, reader.info().height, at_once.data());
        EXPECT_EQ('a' + std::lround(at_once[reader.info().width].r * 10),
                  std::string(expected)[reader.info().width + 1])
            << "the second row, read together with the first";

        file_bytes dpx = plain("a.dpx");
        dpx[769] = static_cast<std::uint8_t>(dpx_numbers[orientation - 1]);
        EXPECT_EQ(letters(opened(save("a.dpx", dpx))), expected);
        const std::string exif = exif_of(static_cast<char>(orientation));
        EXPECT_EQ(letters(opened(save("a.png", with_chunk(plain("a.png"), "eXIf", exif)))), expected);

        file_bytes jpeg = plain("a.jpg");
        const std::string segment = std::string("\xFF\xE1\0\x22"sv) + std::string("Exif\0\0"sv) + exif;
        ASSERT_EQ(segment.size(), 2u + 0x22u);
        jpeg.insert(jpeg.begin() + 2, segment.begin(), segment.end());
        EXPECT_EQ(letters(opened(save("a.jpg", jpeg))), expected);
    }
}

TEST_F(still_reading, tags_of_a_png_tell_the_transfer_and_are_kept)
{
    const struct
    {
        const char* name;
        std::string_view type, data;
        transfer expected;
    } cases[] = {
        {"gamma of 1", "gAMA", "\0\x01\x86\xA0"sv, transfer::linear},
        {"gamma of 1/2.2", "gAMA", "\0\0\xB1\x8F"sv, transfer::display},
        {"PQ", "cICP", "\x09\x10\0\x01"sv, transfer::pq},
        {"HLG", "cICP", "\x09\x12\0\x01"sv, transfer::hlg},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.name);
        const still_reader reader = opened(save("a.png", with_chunk(plain("a.png"), c.type, c.data)));
        EXPECT_EQ(reader.info().transfer, c.expected);
        const file_bytes again = encoded("b.png", reader.info(), all_rows(reader), {});
        EXPECT_EQ(opened(save("b.png", again)).info().transfer, c.expected);
    }
    const file_bytes both = with_chunk(with_chunk(plain("a.png"), "gAMA", "\0\x01\x86\xA0"sv), "sRGB", "\0"sv);
    EXPECT_EQ(opened(save("a.png", both)).info().transfer, transfer::display) << "sRGB outranks gAMA";
}

TEST_F(still_reading, a_second_page_or_frame_is_named)
{
    const file_bytes animated = with_chunk(plain("a.png"), "acTL", "\0\0\0\x02\0\0\0\0"sv);
    EXPECT_EQ(opened(save("a.png", animated)).warnings().size(), 1u);
    file_bytes pages = plain("a.tif");
    pages[pages.size() - 4] = 8; // where the next directory is
    EXPECT_EQ(opened(save("a.tif", pages)).warnings().size(), 1u);
    EXPECT_TRUE(opened(save("a.tif", plain("a.tif"))).warnings().empty());
}

TEST_F(still_reading, refuses_what_is_cut_off)
{
    for (const char* name : {"a.png", "a.jpg", "a.tif", "a.exr", "a.dpx"})
    {
        const file_bytes whole = plain(name, 40, 33);
        for (const std::size_t left : {std::size_t{9}, whole.size() / 4, whole.size() / 2, whole.size() - 20})
        {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(left));
            still_reader reader;
            error why;
            EXPECT_FALSE(reader.open(save(name, file_bytes(whole.begin(), whole.begin() + left)), why));
            EXPECT_EQ(why.kind, error_kind::unreadable) << why.reason;
        }
    }
}

TEST_F(still_reading, survives_any_damage)
{
    std::mt19937 random(4);
    for (const char* name : {"a.png", "a.jpg", "a.tif", "a.exr", "a.dpx"})
        for (int round = 0; round < 100; ++round)
        {
            file_bytes bytes = plain(name, 20, 9);
            for (int i = 0; i < 4; ++i)
                bytes[random() % (round % 2 ? bytes.size() : std::min<std::size_t>(bytes.size(), 200))] ^=
                    random() % 256;
            still_reader reader;
            error why;
            const bool read = reader.open(save(name, bytes), why);
            EXPECT_EQ(read, why.reason.empty());
            if (read && reader.info().width * reader.info().height < 100000)
            {
                EXPECT_FALSE(all_rows(reader).empty());
            }
        }
}

TEST_F(still_reading, says_in_one_line_why_not)
{
    file_bytes huge = plain("a.png");
    huge[16] = huge[20] = 0x01; // width and height beyond 16 million
    put_u32(huge, 0);
    const std::uint32_t crc = png_checksum(std::span(huge).subspan(12, 17));
    for (int i = 0; i < 4; ++i)
        huge[29 + i] = static_cast<std::uint8_t>(crc >> (24 - 8 * i));
    const std::string_view text = "not a picture at all, only words";
    const std::string_view clip = "\0\0\0\x18"
                                  "ftypisom\0\0\x02\0isomiso2\0\0\0\x08moov"sv;
    const struct
    {
        std::string where;
        error_kind kind;
        const char* says;
    } cases[] = {
        {path("none.png"), error_kind::unreadable, "no such file"},
        {folder.string(), error_kind::unreadable, "folder"},
        {save("empty.png", {}), error_kind::unreadable, "empty"},
        {save("text.png", file_bytes(text.begin(), text.end())), error_kind::unsupported, "not a picture"},
        {save("clip.png", file_bytes(clip.begin(), clip.end())), error_kind::unsupported, "not a still picture"},
        {save("ink.tif", with_entry(plain("a.tif"), 262, 5)), error_kind::unsupported, "CMYK"},
        {save("tile.tif", with_entry(plain("a.tif"), 322, 64)), error_kind::unsupported, "tiles"},
        {save("float.tif", with_entry(plain("a.tif"), 339, 3)), error_kind::unsupported, "floating"},
        {save("huge.png", huge), error_kind::unreadable, "size"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.says);
        still_reader reader;
        error why;
        EXPECT_FALSE(reader.open(c.where, why));
        EXPECT_EQ(why.kind, c.kind) << why.reason;
        EXPECT_NE(why.reason.find(c.says), std::string::npos) << why.reason;
        EXPECT_EQ(why.reason.find('\n'), std::string::npos);
    }
}

TEST_F(still_reading, a_failed_open_keeps_what_was_open)
{
    still_reader reader = opened(save("a.png", plain("a.png")));
    error why;
    EXPECT_FALSE(reader.open(path("none.png"), why));
    EXPECT_EQ(letters(reader), "abc/def/");
}

TEST_F(still_reading, gray_is_read_as_colour)
{
    const std::string_view pgm = "P5 2 1 255\n\x33\xFF";
    const still_reader reader = opened(save("a.pgm", file_bytes(pgm.begin(), pgm.end())));
    EXPECT_TRUE(reader.info().gray);
    EXPECT_EQ(all_rows(reader)[0], (argb_float{1, 0.2f, 0.2f, 0.2f}));
}

} // namespace
} // namespace ov1::media
