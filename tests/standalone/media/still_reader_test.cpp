#include "media/picture_facts.h"
#include "media_files.h"

#include <algorithm>
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

/// Sets a tag of a little-endian TIFF to one short or two, in the order of the tags, as the format has it.
/// The directory is the file's end.
file_bytes with_entry(file_bytes tiff, std::uint16_t tag, std::uint8_t value, std::uint8_t second = 0)
{
    const std::size_t directory = tiff[4] | tiff[5] << 8 | tiff[6] << 16;
    const auto tag_at = [&](std::size_t at) { return tiff[at] | tiff[at + 1] << 8; };
    std::size_t at = directory + 2;
    while (at + 12 <= tiff.size() - 4 && tag_at(at) < tag)
        at += 12;
    const std::uint8_t count = second != 0 ? 2 : 1;
    const auto low = static_cast<std::uint8_t>(tag);
    const auto high = static_cast<std::uint8_t>(tag >> 8);
    const file_bytes entry{low, high, 3, 0, count, 0, 0, 0, value, 0, second, 0};
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

/// The byte behind a text.
file_bytes::iterator at_text(file_bytes& bytes, std::string_view text)
{
    const auto same = [](std::uint8_t x, char y) { return x == static_cast<std::uint8_t>(y); };
    return std::search(bytes.begin(), bytes.end(), text.begin(), text.end(), same) +
           static_cast<std::ptrdiff_t>(text.size());
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
        rows one_by_one(6);
        for (std::size_t y = 0; y < reader.info().height; ++y)
            reader.read_rows(y, 1, one_by_one.data() + y * reader.info().width);
        EXPECT_EQ(at_once, one_by_one);

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
    const file_bytes linear =
        encoded("a.png", picture_info(1, 1, depth::u16), rows(1), {.transfer = transfer_choice::linear});
    EXPECT_EQ(opened(save("a.png", linear)).info().transfer, transfer::linear) << "and is written";
}

TEST_F(still_reading, what_of_a_file_is_left_out_is_named)
{
    const file_bytes animated = with_chunk(plain("a.png"), "acTL", "\0\0\0\x02\0\0\0\0"sv);
    EXPECT_EQ(opened(save("a.png", animated)).warnings().size(), 1u);
    file_bytes pages = plain("a.tif");
    pages[pages.size() - 4] = 8; // where the next directory is
    EXPECT_EQ(opened(save("a.tif", pages)).warnings().size(), 1u);
    file_bytes wide = plain("a.exr");
    *at_text(wide, "displayWindow\0box2i\0\x10\0\0\0\0\0\0\0\0\0\0\0"sv) = 7; // the rightmost column
    EXPECT_EQ(opened(save("a.exr", wide)).warnings().size(), 1u);
    for (const char* name : {"a.png", "a.tif", "a.exr"})
        EXPECT_TRUE(opened(save(name, plain(name))).warnings().empty());
}

TEST_F(still_reading, refuses_what_is_cut_off)
{
    const struct
    {
        const char* name;
        std::size_t cut; ///< bytes that are missed already
    } cases[] = {{"a.png", 12}, {"a.jpg", 1}, {"a.tif", 20}, {"a.exr", 1}, {"a.dpx", 1}};
    for (const auto& c : cases)
    {
        const file_bytes whole = plain(c.name, 40, 33);
        for (const std::size_t left : {std::size_t{9}, whole.size() / 4, whole.size() / 2, whole.size() - c.cut})
        {
            SCOPED_TRACE(std::string(c.name) + " " + std::to_string(left));
            still_reader reader;
            error why;
            EXPECT_FALSE(reader.open(save(c.name, file_bytes(whole.begin(), whole.begin() + left)), why));
            EXPECT_EQ(why.kind, error_kind::unreadable) << why.reason;
        }
    }
}

TEST_F(still_reading, refuses_samples_that_do_not_decode)
{
    for (const char* name : {"a.png", "a.tif", "a.exr"}) // compressed, and checked
    {
        SCOPED_TRACE(name);
        std::mt19937 random(7);
        const rows noise = random_rows(40 * 33, false, [&] { return static_cast<float>(random() % 256) / 255; });
        file_bytes bytes = encoded(name, picture_info(40, 33, depth::u8), noise);
        std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size() / 2), 8, std::uint8_t{0xFF});
        still_reader reader;
        error why;
        EXPECT_FALSE(reader.open(save(name, bytes), why));
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
    file_bytes huge = plain("a.dpx");
    huge[772] = huge[776] = 0x10; // the highest bytes of width and height
    file_bytes away = plain("a.exr");
    *at_text(away, "displayWindow\0box2i\0\x10\0\0\0"sv) = 1;
    const std::string_view text = "not a picture at all, only words";
    const std::string_view clip = "\0\0\0\x18"
                                  "ftypisom\0\0\x02\0isomiso2\0\0\0\x08moov"sv;
    file_bytes ink = plain("a.jpg");
    at_text(ink, "\xFF\xC0"sv)[7] = 4; // components
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
        {save("ink.jpg", ink), error_kind::unsupported, "CMYK"},
        {save("tile.tif", with_entry(plain("a.tif"), 322, 64)), error_kind::unsupported, "tiles"},
        {save("float.tif", with_entry(plain("a.tif"), 339, 3)), error_kind::unsupported, "floating"},
        {save("away.exr", away), error_kind::unsupported, "display window"},
        {save("huge.dpx", huge), error_kind::unreadable, "size"},
    };
    still_reader reader = opened(save("a.png", plain("a.png")));
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.says);
        error why;
        EXPECT_FALSE(reader.open(c.where, why));
        EXPECT_EQ(why.kind, c.kind) << why.reason;
        EXPECT_NE(why.reason.find(c.says), std::string::npos) << why.reason;
        EXPECT_EQ(why.reason.find('\n'), std::string::npos);
        EXPECT_EQ(letters(reader), "abc/def/") << "what was open still is";
    }
}

TEST_F(still_reading, gray_is_read_as_colour)
{
    const std::string_view pgm = "P5 2 1 255\n\x33\xFF";
    const still_reader reader = opened(save("a.pgm", file_bytes(pgm.begin(), pgm.end())));
    EXPECT_TRUE(reader.info().gray);
    EXPECT_EQ(all_rows(reader)[0], (argb_float{1, 0.2f, 0.2f, 0.2f}));
}

TEST_F(still_reading, ycbcr_of_a_tiff_spans_all_codes)
{
    const rows coded{{1, 153.0f / 255, 128.0f / 255, 178.0f / 255}}; // R = 0.6 + 1.402 x 50 / 255
    const file_bytes rgb = encoded("a.tif", picture_info(1, 1, depth::u8), coded);
    const argb_float c = all_rows(opened(save("a.tif", with_entry(with_entry(rgb, 262, 6), 530, 1, 1))))[0];
    EXPECT_NEAR(c.r, 0.874902f, 1e-5f);
    EXPECT_NEAR(c.g, 0.459973f, 1e-5f);
    EXPECT_NEAR(c.b, 0.6f, 1e-5f);
}

TEST(jpeg_facts, follows_coded_data_to_the_end_of_image)
{
    const auto truncated = [](std::string_view text) {
        return jpeg_facts({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}).truncated;
    };
    const std::string scan("\xFF\xD8\xFF\xDA\0\x04\x01\x01"
                           "ab\xFF\0"sv);
    EXPECT_FALSE(truncated(scan + "\xFF\xD9"));
    EXPECT_FALSE(truncated(scan + "\xFF\xD0"
                                  "\xFF\xFF\xD9"))
        << "a restart, and a fill byte";
    EXPECT_FALSE(truncated(scan + "\xFF\xD9 and more"));
    EXPECT_TRUE(truncated(scan + "\xFF\xD0"));
    EXPECT_TRUE(truncated(scan + "\xFF"));
    EXPECT_TRUE(truncated("\xFF\xD8"));
}

} // namespace
} // namespace ov1::media
