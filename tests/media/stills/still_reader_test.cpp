#include "media/stills/picture_facts.h"
#include "support/media_files.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace ov1::media
{
namespace
{

using namespace std::string_view_literals;
using still_reading = media_test;

/// Puts a chunk behind a PNG's header.
file_bytes with_chunk(file_bytes png, std::string_view type, std::string_view data)
{
    const auto big_endian = [](std::uint32_t v)
    { return file_bytes{std::uint8_t(v >> 24), std::uint8_t(v >> 16), std::uint8_t(v >> 8), std::uint8_t(v)}; };
    file_bytes chunk = big_endian(static_cast<std::uint32_t>(data.size()));
    chunk.insert(chunk.end(), type.begin(), type.end());
    chunk.insert(chunk.end(), data.begin(), data.end());
    std::uint32_t crc = 0xFFFFFFFFu;
    for (const std::uint8_t byte : std::span(chunk).subspan(4))
    {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320u : 0);
    }
    const file_bytes checksum = big_endian(~crc);
    chunk.insert(chunk.end(), checksum.begin(), checksum.end());
    png.insert(png.begin() + 33, chunk.begin(), chunk.end());
    return png;
}

/// Sets a tag of a little-endian TIFF to one short or two, in the order of the tags, as the format has it.
/// The directory is the file's end.
file_bytes with_entry(file_bytes tiff, int tag, std::uint8_t value, std::uint8_t second = 0)
{
    const int directory = tiff[4] | tiff[5] << 8 | tiff[6] << 16;
    auto at = tiff.begin() + directory + 2;
    const auto tag_here = [&] { return tiff.end() - at < 16 ? 0x10000 : at[0] | at[1] << 8; };
    while (tag_here() < tag)
        at += 12;
    if (tag_here() == tag)
        at = tiff.erase(at, at + 12);
    else
        ++tiff[static_cast<std::size_t>(directory)];
    const std::uint8_t count = second != 0 ? 2 : 1;
    tiff.insert(at, {std::uint8_t(tag), std::uint8_t(tag >> 8), 3, 0, count, 0, 0, 0, value, 0, second, 0});
    return tiff;
}

file_bytes plain(const std::string& name, std::size_t width = 3, std::size_t height = 2)
{
    rows pixels(width * height);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = {1, static_cast<float>(i % 8) * 0.1f, 0.5f, 0.9f};
    return encoded(name, picture_info(width, height, depth::u16), pixels);
}

/// The letters a to f by the red of plain(), row by row; all rows at once must agree.
std::string letters(const still_reader& reader)
{
    std::string text;
    const rows at_once = all_rows(reader);
    rows row(reader.info().width);
    for (std::size_t y = 0; y < reader.info().height; ++y, text += '/')
    {
        reader.read_rows(y, 1, row.data());
        EXPECT_TRUE(std::equal(row.begin(), row.end(), at_once.begin() + std::ptrdiff_t(y * row.size())));
        for (const argb_float& c : row)
            text += static_cast<char>('a' + std::lround(c.r * 10));
    }
    return text;
}

/// The byte behind a text.
file_bytes::iterator at_text(file_bytes& bytes, std::string_view text)
{
    const auto same = [](std::uint8_t x, char y) { return x == static_cast<std::uint8_t>(y); };
    return std::search(bytes.begin(), bytes.end(), text.begin(), text.end(), same) + std::ptrdiff_t(text.size());
}

TEST_F(still_reading, every_orientation_comes_upright)
{
    // Stored as abc over def; the number says which side of the upright picture the stored top and left are.
    const char* upright[] = {"abc/def/",  "cba/fed/",  "fed/cba/",  "def/abc/",
                             "ad/be/cf/", "da/eb/fc/", "fc/eb/da/", "cf/be/ad/"};
    const std::uint8_t dpx_numbers[] = {0, 1, 3, 2, 4, 5, 7, 6};
    for (std::uint8_t orientation = 1; orientation <= 8; ++orientation)
    {
        SCOPED_TRACE(int{orientation});
        const char* expected = upright[orientation - 1];
        const still_reader tiff = opened("a.tif", with_entry(plain("a.tif"), 274, orientation));
        EXPECT_EQ(tiff.info().orientation, orientation);
        EXPECT_EQ(letters(tiff), expected);
        file_bytes dpx = plain("a.dpx");
        dpx[769] = dpx_numbers[orientation - 1];
        EXPECT_EQ(letters(opened("a.dpx", dpx)), expected);

        // An Exif block, big-endian, that holds an orientation alone.
        std::string exif("MM\0\x2A\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0.\0\0\0\0\0\0"sv);
        exif[19] = static_cast<char>(orientation);
        EXPECT_EQ(letters(opened("a.png", with_chunk(plain("a.png"), "eXIf", exif))), expected);
        const std::string segment = std::string("\xFF\xE1\0\x22"
                                                "Exif\0\0"sv) +
                                    exif;
        file_bytes jpeg = plain("a.jpg");
        jpeg.insert(jpeg.begin() + 2, segment.begin(), segment.end());
        EXPECT_EQ(letters(opened("a.jpg", jpeg)), expected);
    }
}

TEST_F(still_reading, tags_of_a_png_tell_the_transfer_and_are_kept)
{
    const file_bytes gamma_of_1 = with_chunk(plain("a.png"), "gAMA", "\0\x01\x86\xA0"sv);
    const std::tuple<const char*, file_bytes, transfer> cases[] = {
        {"gamma of 1", gamma_of_1, transfer::linear},
        {"gamma of 1/2.2", with_chunk(plain("a.png"), "gAMA", "\0\0\xB1\x8F"sv), transfer::display},
        {"sRGB outranks gAMA", with_chunk(gamma_of_1, "sRGB", "\0"sv), transfer::display},
        {"PQ", with_chunk(plain("a.png"), "cICP", "\x09\x10\0\x01"sv), transfer::pq},
        {"HLG", with_chunk(plain("a.png"), "cICP", "\x09\x12\0\x01"sv), transfer::hlg},
    };
    for (const auto& [name, png, expected] : cases)
    {
        SCOPED_TRACE(name);
        const still_reader reader = opened("a.png", png);
        EXPECT_EQ(reader.info().transfer, expected);
        const file_bytes again = encoded("b.png", reader.info(), all_rows(reader), {});
        EXPECT_EQ(opened("b.png", again).info().transfer, expected);
    }
}

TEST_F(still_reading, what_of_a_file_is_left_out_is_named)
{
    const file_bytes animated = with_chunk(plain("a.png"), "acTL", "\0\0\0\x02\0\0\0\0"sv);
    EXPECT_EQ(opened("a.png", animated).warnings().size(), 1u);
    file_bytes pages = plain("a.tif");
    pages[pages.size() - 4] = 8; // where the next directory is
    EXPECT_EQ(opened("a.tif", pages).warnings().size(), 1u);
    file_bytes wide = plain("a.exr");
    *at_text(wide, "displayWindow\0box2i\0\x10\0\0\0\0\0\0\0\0\0\0\0"sv) = 7; // the rightmost column
    EXPECT_EQ(opened("a.exr", wide).warnings().size(), 1u);
    for (const char* name : {"a.png", "a.tif", "a.exr"})
        EXPECT_TRUE(opened(name, plain(name)).warnings().empty());
}

TEST_F(still_reading, refuses_what_is_cut_off_or_does_not_decode)
{
    // Bytes that are missed already, and whether samples are compressed so that wrong ones show.
    const std::tuple<const char*, std::size_t, bool> cases[] = {
        {"a.png", 12, true}, {"a.jpg", 1, false}, {"a.tif", 20, true}, {"a.exr", 1, true}, {"a.dpx", 1, false}};
    std::mt19937 random(7);
    const rows noise = random_rows(40 * 33, false, [&] { return static_cast<float>(random() % 256) / 255; });
    for (const auto& [name, cut, checked] : cases)
    {
        file_bytes bytes = encoded(name, picture_info(40, 33, depth::u8), noise);
        for (const std::size_t left : {std::size_t{9}, bytes.size() / 4, bytes.size() / 2, bytes.size() - cut})
        {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(left));
            const auto read = still_reader().open(save(name, {bytes.begin(), bytes.begin() + std::ptrdiff_t(left)}));
            ASSERT_FALSE(read);
            EXPECT_EQ(read.error().kind, failure_kind::unreadable) << reason_of(read);
        }
        std::fill_n(bytes.begin() + std::ptrdiff_t(bytes.size() / 2), 8, std::uint8_t{0xFF});
        EXPECT_TRUE(!checked || !still_reader().open(save(name, bytes))) << name;
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
                bytes[random() % std::min<std::size_t>(bytes.size(), round % 2 ? SIZE_MAX : 200)] ^= random() % 256;
            still_reader reader;
            const auto read = reader.open(save(name, bytes));
            EXPECT_TRUE(read || !read.error().reason.empty());
            EXPECT_FALSE(read && reader.info().width * reader.info().height < 100000 && all_rows(reader).empty());
        }
}

TEST_F(still_reading, says_in_one_line_why_not)
{
    file_bytes huge = plain("a.dpx"), away = plain("a.exr"), ink = plain("a.jpg");
    huge[772] = huge[776] = 0x10; // the highest bytes of width and height
    *at_text(away, "displayWindow\0box2i\0\x10\0\0\0"sv) = 1;
    at_text(ink, "\xFF\xC0"sv)[7] = 4; // components
    const std::string_view text = "not a picture at all, only words", clip =
                                                                          "\0\0\0\x18"
                                                                          "ftypisom\0\0\x02\0isomiso2\0\0\0\x08moov"sv;
    constexpr failure_kind unreadable = failure_kind::unreadable, unsupported = failure_kind::unsupported;
    const std::tuple<std::string, failure_kind, const char*> cases[] = {
        {folder / "none.png", unreadable, "no such file"},
        {folder.path, unreadable, "folder"},
        {save("empty.png", {}), unreadable, "empty"},
        {folder.with_file("text.png", text), unsupported, "not a picture"},
        {folder.with_file("clip.png", clip), unsupported, "not a still picture"},
        {save("ink.tif", with_entry(plain("a.tif"), 262, 5)), unsupported, "CMYK"},
        {save("ink.jpg", ink), unsupported, "CMYK"},
        {save("tile.tif", with_entry(plain("a.tif"), 322, 64)), unsupported, "tiles"},
        {save("float.tif", with_entry(plain("a.tif"), 339, 3)), unsupported, "floating"},
        {save("away.exr", away), unsupported, "display window"},
        {save("huge.dpx", huge), unreadable, "size"},
    };
    still_reader reader = opened("a.png", plain("a.png"));
    for (const auto& [where, kind, says] : cases)
    {
        SCOPED_TRACE(says);
        const auto read = reader.open(where);
        ASSERT_FALSE(read);
        const std::string& reason = read.error().reason;
        EXPECT_EQ(read.error().kind, kind) << reason;
        EXPECT_NE(reason.find(says), std::string::npos) << reason;
        EXPECT_EQ(reason.find('\n'), std::string::npos);
        EXPECT_EQ(letters(reader), "abc/def/") << "what was open still is";
    }
}

TEST_F(still_reading, gray_and_ycbcr_of_all_codes_become_colour)
{
    const std::string_view pgm = "P5 2 1 255\n\x33\xFF";
    const still_reader reader = opened("a.pgm", {pgm.begin(), pgm.end()});
    EXPECT_TRUE(reader.info().gray);
    EXPECT_EQ(all_rows(reader)[0], (argb_float{1, 0.2f, 0.2f, 0.2f}));

    const rows coded{{1, 153.0f / 255, 128.0f / 255, 178.0f / 255}}; // R = 0.6 + 1.402 x 50 / 255
    const file_bytes rgb = encoded("a.tif", picture_info(1, 1, depth::u8), coded);
    const argb_float c = all_rows(opened("a.tif", with_entry(with_entry(rgb, 262, 6), 530, 1, 1)))[0];
    EXPECT_NEAR(c.r, 0.874902f, 1e-5f);
    EXPECT_NEAR(c.g, 0.459973f, 1e-5f);
    EXPECT_NEAR(c.b, 0.6f, 1e-5f);
}

TEST(jpeg_facts, follows_coded_data_to_the_end_of_image)
{
    const std::tuple<const char*, std::string_view, bool> cases[] = {
        {"whole", "\xFF\xD9"sv, false},     {"a restart, and a fill byte", "\xFF\xD0\xFF\xFF\xD9"sv, false},
        {"more", "\xFF\xD9 more"sv, false}, {"a restart", "\xFF\xD0"sv, true},
        {"half a mark", "\xFF"sv, true},
    };
    for (const auto& [name, end, truncated] : cases)
    {
        SCOPED_TRACE(name);
        const std::string text = std::string("\xFF\xD8\xFF\xDA\0\x04\x01\x01xy\xFF\0"sv).append(end);
        EXPECT_EQ(jpeg_facts({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}).truncated, truncated);
    }
}

} // namespace
} // namespace ov1::media
