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

struct size
{
    std::size_t width, height;
};
constexpr size sizes[] = {{1, 1}, {3, 5}, {5, 3}, {37, 41}};

TEST_F(still_round_trip, integers_come_back_code_for_code)
{
    using enum alpha_kind;
    const struct
    {
        const char* name;
        depth sample;
        int largest;
        std::vector<alpha_kind> alphas;
    } cases[] = {
        {"a.png", depth::u8, 255, {none, straight}},
        {"a.png", depth::u16, 65535, {none, straight}},
        {"a.tif", depth::u8, 255, {none, straight, premultiplied}},
        {"a.TIFF", depth::u16, 65535, {none, straight, premultiplied}},
        {"a.dpx", depth::u8, 255, {none, straight}},
        {"a.dpx", depth::u10, 1023, {none}},
        {"a.dpx", depth::u12, 4095, {none}},
        {"a.dpx", depth::u16, 65535, {none, straight}},
    };
    std::mt19937 random(1);
    for (const auto& c : cases)
        for (const alpha_kind alpha : c.alphas)
            for (const size& s : sizes)
            {
                SCOPED_TRACE(std::string(c.name) + " " + std::to_string(c.largest) + " wide " +
                             std::to_string(s.width));
                std::uniform_int_distribution<int> code(0, c.largest);
                const rows stored =
                    random_rows(s.width * s.height, alpha != none,
                                [&] { return static_cast<float>(code(random)) / static_cast<float>(c.largest); });
                const still_info info = picture_info(s.width, s.height, c.sample, alpha);
                const still_reader reader = opened(save(c.name, encoded(c.name, info, stored)));
                EXPECT_EQ(reader.info().width, s.width);
                EXPECT_EQ(reader.info().height, s.height);
                EXPECT_EQ(reader.info().depth, c.sample);
                EXPECT_EQ(reader.info().alpha, alpha);
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
        {"a.exr", depth::half, 1.0f + 0x0.8p-10f, 1.0f},
        {"a.exr", depth::half, 1.0f + 0x1.7p-10f, 1.0f + 0x1p-10f},
        {"a.exr", depth::half, 65519.0f, 65504.0f},
        {"a.exr", depth::half, 70000.0f, std::numeric_limits<float>::infinity()},
        {"a.exr", depth::half, -0x1.8p-24f, -0x2p-24f}, // subnormal
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(std::string(c.name) + " " + std::to_string(c.in));
        const bool has_alpha = c.sample == depth::half;
        const still_info info = picture_info(1, 1, c.sample, has_alpha ? alpha_kind::premultiplied : alpha_kind::none);
        const rows stored{{c.in, 0.25f, c.in, 0.75f}};
        const rows back = all_rows(opened(save(c.name, encoded(c.name, info, stored))));
        EXPECT_FLOAT_EQ(back[0].g, c.out);
        EXPECT_FLOAT_EQ(back[0].a, has_alpha ? c.out : 1.0f);
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

TEST_F(still_round_trip, jpeg_quality_scales_the_tables_of_the_standard)
{
    const struct
    {
        int quality, second, last; ///< steps of table K.1 in zigzag order: 11 and 99, scaled
    } cases[] = {{50, 11, 99}, {90, 2, 20}, {100, 1, 1}, {10, 55, 255}, {1, 255, 255}};
    for (const auto& c : cases)
    {
        const file_bytes jpeg = encoded("a.jpg", picture_info(1, 1, depth::u8), rows(1),
                                        {.quality = c.quality, .transfer = transfer_choice::none});
        const file_bytes segment{0xFF, 0xDB};
        const auto table = std::search(jpeg.begin(), jpeg.end(), segment.begin(), segment.end()) + 5;
        EXPECT_EQ(table[1], c.second);
        EXPECT_EQ(table[63], c.last);
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

TEST_F(still_round_trip, headers_say_what_is_so)
{
    const file_bytes tiff = encoded("a.tif", picture_info(3, 5, depth::u8), rows(15));
    const file_bytes deflate{3, 1, 3, 0, 1, 0, 0, 0, 8, 0}; // tag 259, one short: 8, as most readers know it
    EXPECT_NE(std::search(tiff.begin(), tiff.end(), deflate.begin(), deflate.end()), tiff.end());

    const rows pixels(15, {1, 0.2f, 0.5f, 0.9f});
    file_bytes dpx = encoded("a.dpx", picture_info(3, 5, depth::u10), pixels);
    EXPECT_EQ(dpx[801], 4) << "video, as SMPTE ST 268 numbers it; not 2, linear";
    dpx[801] = 3; // logarithmic
    dpx[802] = 1;
    const still_reader reader = opened(save("a.dpx", dpx));
    EXPECT_EQ(encoded("b.dpx", reader.info(), all_rows(reader), {}), dpx);
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
