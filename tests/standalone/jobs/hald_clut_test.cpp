#include "standalone/jobs/hald_clut.h"

#include "media/stills/still_reader.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

/// Three channels that change places, each by its own rule.
class turning_renderer : public row_renderer
{
public:
    static argb_float turned(const argb_float& c) { return {c.a, c.b, 1.0f - c.r, c.g * 0.5f}; }

    void render_row(std::size_t, const argb_float* in, argb_float* out, std::size_t count) const override
    {
        for (std::size_t i = 0; i < count; ++i)
            out[i] = turned(in[i]);
    }
};

TEST(hald_clut, holds_64_points_per_axis_with_red_fastest)
{
    const auto bytes = make_hald_clut(turning_renderer());
    ASSERT_TRUE(bytes) << bytes.error().reason;
    const temp_folder folder;
    const std::string file =
        folder.with_file("hald.png", {reinterpret_cast<const char*>(bytes->data()), bytes->size()});
    media::still_reader reader;
    ASSERT_TRUE(reader.open(file));
    ASSERT_EQ(reader.info().width, 512u);
    ASSERT_EQ(reader.info().height, 512u);
    EXPECT_EQ(reader.info().depth, media::depth::u16);
    std::vector<argb_float> pixels(512 * 512);
    reader.read_rows(0, 512, pixels.data());
    for (std::size_t i = 0; i < pixels.size(); ++i)
    {
        const auto point = [](std::size_t n) { return static_cast<float>(n % 64) / 63.0f; };
        const argb_float wanted = turning_renderer::turned({1.0f, point(i), point(i / 64), point(i / 4096)});
        // Half a step of 16 bits, and the rounding of the floats.
        ASSERT_NEAR(pixels[i].r, wanted.r, 0.51 / 65535) << i;
        ASSERT_NEAR(pixels[i].g, wanted.g, 0.51 / 65535) << i;
        ASSERT_NEAR(pixels[i].b, wanted.b, 0.51 / 65535) << i;
    }
}

} // namespace
} // namespace ov1
