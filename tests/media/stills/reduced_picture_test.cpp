#include "media/stills/reduced_picture.h"

#include "support/media_files.h"

namespace ov1::media
{
namespace
{

using reduced = media_test;

TEST_F(reduced, pixels_are_the_mean_of_its_boxes)
{
    rows pixels(8 * 4);
    for (std::size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = {1, static_cast<float>(i % 8), static_cast<float>(i / 8), 5};
    const still_reader wide = stored("a.exr", picture_info(8, 4, depth::full_float), pixels);
    const reduced_picture small = reduce(wide, 4, 100);
    ASSERT_EQ(small.width, 4u);
    ASSERT_EQ(small.height, 2u);
    EXPECT_EQ(small.pixels[0], (argb_float{1, 0.5f, 0.5f, 5}));
    EXPECT_EQ(small.pixels[7], (argb_float{1, 6.5f, 2.5f, 5}));
    EXPECT_EQ(reduce(wide, 100, 100).pixels, pixels) << "never larger";
    EXPECT_EQ(reduce(wide, 100, 1).width, 2u);

    const still_info with_alpha = picture_info(2, 1, depth::u8, alpha_kind::straight);
    const still_reader clear = stored("a.png", with_alpha, {{0, 1, 1, 1}, {1, 0.2f, 0.4f, 0.6f}});
    EXPECT_EQ(reduce(clear, 1, 1).pixels[0], (argb_float{0.5f, 0.2f, 0.4f, 0.6f}))
        << "what is clear has no colour to give";
}

} // namespace
} // namespace ov1::media
