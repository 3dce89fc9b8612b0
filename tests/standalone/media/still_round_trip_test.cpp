#include "media_files.h"

#include <algorithm>
#include <bit>
#include <string_view>

namespace ov1::media
{
namespace
{

class still_round_trip : public media_test
{
};

struct kept
{
    const char* name;
    depth sample;
    alpha_kind alpha;
};

constexpr kept integers[] = {
    {"a.png", depth::u8, alpha_kind::none},          {"a.png", depth::u8, alpha_kind::straight},
    {"a.png", depth::u16, alpha_kind::none},         {"a.png", depth::u16, alpha_kind::straight},
    {"a.tif", depth::u8, alpha_kind::none},          {"a.TIFF", depth::u8, alpha_kind::straight},
    {"a.tif", depth::u16, alpha_kind::none},         {"a.tif", depth::u16, alpha_kind::straight},
    {"a.tif", depth::u8, alpha_kind::premultiplied}, {"a.tif", depth::u16, alpha_kind::premultiplied},
    {"a.dpx", depth::u8, alpha_kind::none},          {"a.dpx", depth::u8, alpha_kind::straight},
    {"a.dpx", depth::u10, alpha_kind::none},         {"a.dpx", depth::u12, alpha_kind::none},
    {"a.dpx", depth::u16, alpha_kind::none},         {"a.dpx", depth::u16, alpha_kind::straight},
};

struct size
{
    std::size_t width, height;
};
constexpr size sizes[] = {{1, 1}, {3, 5}, {5, 3}, {37, 41}};

TEST_F(still_round_trip, integers_come_back_code_for_code)
{
    std::mt19937 random(1);
    for (const kept& row : integers)
        for (const size& s : sizes)
        {
            SCOPED_TRACE(std::string(row.name) + " " + std::string(name_of(row.sample)) + " wide " +
                         std::to_string(s.width));
            const int largest = row.sample == depth::u8    ? 255
                                : row.sample == depth::u10 ? 1023
                                : row.sample == depth::u12 ? 4095
                                                           : 65535;
            std::uniform_int_distribution<int> code(0, largest);
            const rows stored =
                random_rows(s.width * s.height, row.alpha != alpha_kind::none,
                            [&] { return static_cast<float>(code(random)) / static_cast<float>(largest); });
            const still_info info = picture_info(s.width, s.height, row.sample, row.alpha);
            const still_reader reader = opened(save(row.name, encoded(row.name, info, stored)));
            EXPECT_EQ(reader.info().width, s.width);
            EXPECT_EQ(reader.info().height, s.height);
            EXPECT_EQ(reader.info().depth, row.sample);
            EXPECT_FALSE(reader.info().gray);
            // Nobody says of a DPX how its alpha is meant.
            EXPECT_EQ(reader.info().alpha, row.alpha);
            EXPECT_EQ(all_rows(reader), stored) << "codes over the largest one, rounded once";
        }
}

TEST_F(still_round_trip, floats_come_back_bit_for_bit)
{
    std::mt19937 random(2);
    for (const alpha_kind alpha : {alpha_kind::none, alpha_kind::premultiplied})
        for (const size& s : sizes)
        {
            rows stored = random_rows(s.width * s.height, alpha != alpha_kind::none,
                                      [&] { return std::ldexp(static_cast<float>(random()), -30) - 1.0f; });
            stored[0].g = -std::numeric_limits<float>::infinity();
            stored.back().b = std::numeric_limits<float>::denorm_min();
            const still_info info = picture_info(s.width, s.height, depth::full_float, alpha);
            const still_reader reader = opened(save("a.exr", encoded("a.exr", info, stored)));
            EXPECT_EQ(reader.info().depth, depth::full_float);
            EXPECT_EQ(reader.info().alpha, alpha);
            EXPECT_EQ(reader.info().transfer, transfer::linear);
            EXPECT_EQ(all_rows(reader), stored);
        }
}

/// The value of binary16 by its definition; a NaN is not asked for.
float half_value(unsigned bits)
{
    const int exponent = static_cast<int>(bits >> 10 & 31);
    const auto fraction = static_cast<float>(bits & 1023);
    const float size = exponent == 0    ? std::ldexp(fraction, -24)
                       : exponent == 31 ? std::numeric_limits<float>::infinity()
                                        : std::ldexp(1024 + fraction, exponent - 25);
    return (bits & 0x8000) != 0 ? -size : size;
}

TEST_F(still_round_trip, every_half_comes_back)
{
    rows stored(65536);
    const auto number = [](unsigned bits)
    { return (bits & 0x7C00) == 0x7C00 ? half_value(bits & 0xFC00) : half_value(bits); };
    for (unsigned i = 0; i < stored.size(); ++i)
        stored[i] = {number(65535 - i), number(i), number(i * 3 & 65535), number(i * 5 & 65535)};
    const still_info info = picture_info(256, 256, depth::half, alpha_kind::premultiplied);
    const still_reader reader = opened(save("a.exr", encoded("a.exr", info, stored)));
    EXPECT_EQ(reader.info().depth, depth::half);
    const rows back = all_rows(reader);
    for (std::size_t i = 0; i < stored.size(); ++i)
        ASSERT_EQ(std::bit_cast<std::uint32_t>(back[i].r), std::bit_cast<std::uint32_t>(stored[i].r)) << i;
    EXPECT_EQ(back, stored);
}

TEST_F(still_round_trip, rounds_to_the_nearest_and_limits)
{
    const struct
    {
        const char* name;
        depth sample;
        float in, out;
    } cases[] = {
        {"a.png", depth::u8, 100.49f / 255, 100.0f / 255},
        {"a.png", depth::u8, 100.51f / 255, 101.0f / 255},
        {"a.png", depth::u8, -0.2f, 0.0f},
        {"a.tif", depth::u16, 1.5f, 1.0f},
        {"a.dpx", depth::u10, 511.6f / 1023, 512.0f / 1023},
        {"a.dpx", depth::u12, std::numeric_limits<float>::quiet_NaN(), 0.0f},
        {"a.exr", depth::half, 1.0f + 0x1.8p-10f, 1.0f + 0x2p-10f}, // ties to even
        {"a.exr", depth::half, 1.0f + 0x1.7p-10f, 1.0f + 0x1p-10f},
        {"a.exr", depth::half, 65519.0f, 65504.0f},
        {"a.exr", depth::half, 70000.0f, std::numeric_limits<float>::infinity()},
        {"a.exr", depth::half, -0x1.8p-24f, -0x2p-24f}, // subnormal
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(std::string(c.name) + " " + std::to_string(c.in));
        const rows stored{{1, 0.25f, c.in, 0.75f}};
        const rows back = all_rows(opened(save(c.name, encoded(c.name, picture_info(1, 1, c.sample), stored))));
        EXPECT_FLOAT_EQ(back[0].g, c.out);
        EXPECT_NEAR(back[0].b, 0.75f, 0.003f);
    }
}

TEST_F(still_round_trip, jpeg_keeps_flat_colours_at_every_sampling)
{
    const argb_float color{1, 0.8f, 0.3f, 0.1f};
    for (const char* pixels : {"yuv444p", "yuv422p", "yuv420p"})
        for (const size& s : sizes)
        {
            SCOPED_TRACE(std::string(pixels) + " wide " + std::to_string(s.width));
            write_request request{.quality = 100, .pixel_format = pixels, .transfer = transfer_choice::none};
            const still_info info = picture_info(s.width, s.height, depth::u8);
            const still_reader reader =
                opened(save("a.jpg", encoded("a.jpg", info, rows(s.width * s.height, color), request)));
            for (const argb_float& c : all_rows(reader))
            {
                constexpr float code = 1.0f / 255; // rounding of Y, Cb and Cr, and one step of the mean of a block
                ASSERT_NEAR(c.r, color.r, 2 * code);
                ASSERT_NEAR(c.g, color.g, 2 * code);
                ASSERT_NEAR(c.b, color.b, 2 * code);
            }
        }
}

TEST_F(still_round_trip, jpeg_quality_is_a_trade)
{
    std::mt19937 random(3);
    const rows noise = random_rows(64 * 64, false, [&] { return static_cast<float>(random() % 256) / 255; });
    std::size_t last = 0;
    for (const int quality : {10, 50, 90, 100})
    {
        const file_bytes bytes = encoded("a.jpg", picture_info(64, 64, depth::u8), noise,
                                         {.quality = quality, .transfer = transfer_choice::none});
        EXPECT_GT(bytes.size(), last);
        last = bytes.size();
        if (quality == 50) // the first two steps of table K.1 that are coded as they are, in zigzag order
        {
            const auto table =
                std::search(bytes.begin(), bytes.end(), std::begin("\xFF\xDB"), std::begin("\xFF\xDB") + 2,
                            [](std::uint8_t a, char b) { return a == static_cast<std::uint8_t>(b); });
            EXPECT_EQ(table[6], 11);
            EXPECT_EQ(table[7], 12);
        }
    }
}

TEST_F(still_round_trip, bytes_depend_on_the_picture_alone)
{
    for (const char* name : {"a.png", "a.jpg", "a.tif", "a.exr", "a.dpx"})
    {
        SCOPED_TRACE(name);
        const rows pixels(15, {1, 0.2f, 0.5f, 0.9f});
        const file_bytes first = encoded(name, picture_info(3, 5, depth::u8), pixels);
        EXPECT_EQ(first, encoded(name, picture_info(3, 5, depth::u8), pixels));
        const std::string_view text(reinterpret_cast<const char*>(first.data()), first.size());
        EXPECT_EQ(text.find("Lavc"), std::string_view::npos) << "no version of the library";
    }
}

TEST_F(still_round_trip, a_profile_goes_along_where_the_format_has_room)
{
    for (const std::size_t length : {200u, 150000u}) // a JPEG segment holds less than 65,536
        for (const char* name : {"a.png", "a.jpg", "a.tif"})
        {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(length));
            still_info info = picture_info(3, 5, depth::u8);
            info.icc.resize(length);
            for (std::size_t i = 0; i < length; ++i)
                info.icc[i] = static_cast<std::uint8_t>(i * i >> 3);
            const std::string_view rgb = "RGB ";
            std::copy(rgb.begin(), rgb.end(), info.icc.begin() + 16);
            const rows pixels(15, {1, 0.2f, 0.5f, 0.9f});
            EXPECT_EQ(opened(save(name, encoded(name, info, pixels))).info().icc, info.icc);
        }
}

TEST_F(still_round_trip, one_line_names_what_is_left_out)
{
    still_info info = picture_info(3, 5, depth::u8, alpha_kind::straight);
    info.icc.assign(200, 0);
    const std::string_view gray = "GRAY";
    std::copy(gray.begin(), gray.end(), info.icc.begin() + 16);
    info.has_exif = true;
    info.orientation = 6;
    still_writer writer;
    error why;
    ASSERT_TRUE(writer.create("a.jpg", info, {}, why));
    EXPECT_EQ(writer.warning(),
              "JPEG is written without alpha, the colour profile, which is not RGB, the camera's data "
              "(Exif); the orientation was applied to the pixels");
    ASSERT_TRUE(writer.create("a.png", picture_info(3, 5, depth::u8, alpha_kind::straight), {}, why));
    EXPECT_EQ(writer.warning(), "");
}

} // namespace
} // namespace ov1::media
