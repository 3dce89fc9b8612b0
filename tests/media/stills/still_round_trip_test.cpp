#include "support/media_files.h"

#include <algorithm>
#include <string_view>

namespace ov1::media
{
namespace
{

using still_round_trip = media_test;

constexpr std::pair<std::size_t, std::size_t> sizes[] = {{1, 1}, {3, 5}, {5, 3}, {37, 41}};

constexpr float infinity = std::numeric_limits<float>::infinity();

file_bytes of_one_colour(const std::string& name, const still_info& info)
{
    return encoded(name, info, rows(info.width * info.height, {1, 0.2f, 0.5f, 0.9f}));
}

auto bytes_in(const file_bytes& all, std::initializer_list<std::uint8_t> part)
{
    return std::search(all.begin(), all.end(), part.begin(), part.end());
}

TEST_F(still_round_trip, integers_come_back_code_for_code_and_floats_bit_for_bit)
{
    using enum alpha_kind;
    // The largest code is 0 for floats, which may have any value.
    const std::tuple<const char*, depth, int, std::vector<alpha_kind>> cases[] = {
        {"a.png", depth::u8, 255, {none, straight}},
        {"a.png", depth::u16, 65535, {none, straight}},
        {"a.tif", depth::u8, 255, {none, straight, premultiplied}},
        {"a.TIFF", depth::u16, 65535, {none, straight, premultiplied}},
        {"a.dpx", depth::u8, 255, {none, straight}},
        {"a.dpx", depth::u10, 1023, {none}},
        {"a.dpx", depth::u12, 4095, {none}},
        {"a.dpx", depth::u16, 65535, {none, straight}},
        {"a.exr", depth::full_float, 0, {none, premultiplied}},
    };
    std::mt19937 random(1);
    for (const auto& [name, sample, largest, alphas] : cases)
        for (const alpha_kind alpha : alphas)
            for (const auto& [width, height] : sizes)
            {
                SCOPED_TRACE(std::string(name) + " " + std::to_string(largest) + " wide " + std::to_string(width));
                std::uniform_int_distribution<int> code(0, largest);
                const auto next = [&]
                {
                    return largest == 0 ? std::ldexp(static_cast<float>(random()), -30) - 1.0f
                                        : static_cast<float>(code(random)) / static_cast<float>(largest);
                };
                rows pixels = random_rows(width * height, alpha != none, next);
                if (largest == 0)
                    pixels.back() = {pixels[0].a, -infinity, 2.0f, std::numeric_limits<float>::denorm_min()};
                const still_reader reader = stored(name, picture_info(width, height, sample, alpha), pixels);
                EXPECT_TRUE(reader.info().width == width && reader.info().height == height);
                EXPECT_EQ(reader.info().depth, sample);
                EXPECT_EQ(reader.info().alpha, alpha);
                EXPECT_EQ(reader.info().transfer, largest == 0 ? transfer::linear : transfer::display);
                EXPECT_EQ(all_rows(reader), pixels) << "codes over the largest one, rounded once";
            }
}

/// The value of binary16 by its definition, with infinity in place of the NaNs.
float half_value(unsigned bits)
{
    const int exponent = static_cast<int>(bits >> 10 & 31);
    const auto fraction = static_cast<float>(bits & 1023);
    const float size = exponent == 0    ? std::ldexp(fraction, -24)
                       : exponent == 31 ? infinity
                                        : std::ldexp(1024 + fraction, exponent - 25);
    return (bits & 0x8000) != 0 ? -size : size;
}

TEST_F(still_round_trip, every_half_comes_back)
{
    rows pixels(65536);
    for (unsigned i = 0; i < pixels.size(); ++i)
        pixels[i] = {half_value(65535 - i), half_value(i), half_value(i * 3 & 65535), half_value(i * 5 & 65535)};
    const still_reader reader = stored("a.exr", picture_info(256, 256, depth::half, alpha_kind::premultiplied), pixels);
    EXPECT_EQ(reader.info().depth, depth::half);
    const rows back = all_rows(reader);
    EXPECT_EQ(back, pixels);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        ASSERT_EQ(std::signbit(back[i].r), std::signbit(pixels[i].r)) << i;
}

TEST_F(still_round_trip, rounds_to_the_nearest_and_limits)
{
    const std::tuple<const char*, depth, float, float> cases[] = {
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
        {"a.exr", depth::half, 70000.0f, infinity},
        {"a.exr", depth::half, -0x1.8p-24f, -0x2p-24f}, // subnormal
    };
    for (const auto& [name, sample, in, out] : cases)
    {
        SCOPED_TRACE(std::string(name) + " " + std::to_string(in));
        const bool has_alpha = sample == depth::half;
        const still_info info = picture_info(1, 1, sample, has_alpha ? alpha_kind::premultiplied : alpha_kind::none);
        const rows back = all_rows(stored(name, info, {{in, 0.25f, in, 0.75f}}));
        EXPECT_FLOAT_EQ(back[0].g, out);
        EXPECT_FLOAT_EQ(back[0].a, has_alpha ? out : 1.0f);
        EXPECT_NEAR(back[0].b, 0.75f, 0.003f);
    }
}

TEST_F(still_round_trip, jpeg_keeps_flat_colours_at_every_sampling)
{
    for (const char* sampling : {"yuv444p", "yuv422p", "yuv420p"})
        for (const auto& [width, height] : sizes)
        {
            SCOPED_TRACE(std::string(sampling) + " wide " + std::to_string(width));
            write_request request{.quality = 100, .pixel_format = sampling, .transfer = transfer_choice::none};
            const still_info info = picture_info(width, height, depth::u8);
            const rows pixels(width * height, {1, 0.8f, 0.3f, 0.1f});
            constexpr float two_codes = 2.0f / 255; // rounding of Y, Cb and Cr, and one step of the mean of a block
            for (const argb_float& c : all_rows(opened("a.jpg", encoded("a.jpg", info, pixels, request))))
                for (const auto channel : {&argb_float::r, &argb_float::g, &argb_float::b})
                    ASSERT_NEAR(c.*channel, pixels[0].*channel, two_codes);
        }
}

TEST_F(still_round_trip, jpeg_quality_scales_the_tables_of_the_standard)
{
    // The second and the last step of table K.1 in zigzag order, 11 and 99, scaled.
    const std::tuple<int, int, int> cases[] = {{50, 11, 99}, {90, 2, 20}, {100, 1, 1}, {10, 55, 255}, {1, 255, 255}};
    for (const auto& [quality, second, last] : cases)
    {
        const write_request request{.quality = quality, .transfer = transfer_choice::none};
        const file_bytes jpeg = encoded("a.jpg", picture_info(1, 1, depth::u8), rows(1), request);
        const auto table = bytes_in(jpeg, {0xFF, 0xDB}) + 5;
        EXPECT_TRUE(table[1] == second && table[63] == last) << quality;
    }
}

TEST_F(still_round_trip, bytes_depend_on_the_picture_alone)
{
    for (const char* name : {"a.png", "a.jpg", "a.tif", "a.exr", "a.dpx"})
    {
        SCOPED_TRACE(name);
        const file_bytes first = of_one_colour(name, picture_info(3, 5, depth::u8));
        EXPECT_EQ(first, of_one_colour(name, picture_info(3, 5, depth::u8)));
        EXPECT_EQ(bytes_in(first, {'L', 'a', 'v', 'c'}), first.end()) << "no version of the library";
    }
}

TEST_F(still_round_trip, headers_say_what_is_so)
{
    const file_bytes tiff = encoded("a.tif", picture_info(3, 5, depth::u8), rows(15));
    // Tag 259, one short: 8, as most readers know it.
    EXPECT_NE(bytes_in(tiff, {3, 1, 3, 0, 1, 0, 0, 0, 8, 0}), tiff.end());

    file_bytes dpx = of_one_colour("a.dpx", picture_info(3, 5, depth::u10));
    EXPECT_EQ(dpx[801], 4) << "video, as SMPTE ST 268 numbers it; not 2, linear";
    dpx[801] = 3; // logarithmic
    dpx[802] = 1;
    const still_reader reader = opened("a.dpx", dpx);
    EXPECT_EQ(encoded("b.dpx", reader.info(), all_rows(reader), {}), dpx);
}

void set_profile(still_info& info, std::size_t length, std::string_view space)
{
    info.icc.resize(length);
    for (std::size_t i = 0; i < length; ++i)
        info.icc[i] = static_cast<std::uint8_t>(i * i >> 3);
    std::copy(space.begin(), space.end(), info.icc.begin() + 16);
}

TEST_F(still_round_trip, a_profile_goes_along_where_the_format_has_room)
{
    for (const std::size_t length : {200u, 150000u}) // a JPEG segment holds less than 65,536
        for (const char* name : {"a.png", "a.jpg", "a.tif"})
        {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(length));
            still_info info = picture_info(3, 5, depth::u8);
            set_profile(info, length, "RGB ");
            EXPECT_EQ(opened(name, of_one_colour(name, info)).info().icc, info.icc);
        }
}

TEST_F(still_round_trip, one_line_names_what_is_left_out)
{
    still_info info = picture_info(3, 5, depth::u8, alpha_kind::straight);
    set_profile(info, 200, "GRAY");
    info.has_exif = true;
    info.orientation = 6;
    still_writer writer;
    ASSERT_TRUE(writer.create("a.jpg", info, {}));
    EXPECT_EQ(writer.warning(),
              "JPEG is written without alpha, the colour profile, which is not RGB, the camera's data "
              "(Exif); the orientation was applied to the pixels");
    ASSERT_TRUE(writer.create("a.png", picture_info(3, 5, depth::u8, alpha_kind::straight), {}));
    EXPECT_EQ(writer.warning(), "");
}

} // namespace
} // namespace ov1::media
