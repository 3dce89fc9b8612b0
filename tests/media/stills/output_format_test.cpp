#include "media/stills/output_format.h"

#include "support/media_files.h"

namespace ov1::media
{
namespace
{

TEST(output_format, keeps_the_depth_or_loses_least)
{
    using enum depth;
    using enum still_format;
    const std::tuple<still_format, depth, bool, depth, bool> cases[] = {
        {png, u8, true, u8, true},      {png, u10, false, u16, false},        {png, full_float, true, u16, true},
        {png, half, false, u16, false}, {jpeg, u16, true, u8, false},         {jpeg, full_float, false, u8, false},
        {tiff, u12, false, u16, false}, {tiff, u16, true, u16, true},         {exr, u8, true, half, true},
        {exr, u10, false, half, false}, {exr, u12, false, full_float, false}, {exr, u16, false, full_float, false},
        {exr, half, true, half, true},  {dpx, u10, false, u10, false},        {dpx, u12, false, u12, false},
        {dpx, half, false, u16, false}, {dpx, u10, true, u16, true},          {dpx, u8, true, u8, true},
    };
    for (const auto& [format, source, alpha, written, written_alpha] : cases)
    {
        SCOPED_TRACE(std::string(name_of(format)) + " from " + std::string(name_of(source)));
        const still_info info = picture_info(1, 1, source, alpha ? alpha_kind::straight : alpha_kind::none);
        const auto layout = choose_layout(format, info, {});
        ASSERT_TRUE(layout) << reason_of(layout);
        EXPECT_EQ(layout->depth, written);
        EXPECT_EQ(layout->has_alpha, written_alpha);
    }
}

TEST(output_format, refuses_naming_what_the_format_holds)
{
    using enum depth;
    using enum still_format;
    using enum alpha_kind;
    const std::tuple<still_format, layout_request, alpha_kind, const char*, const char*> cases[] = {
        {png, {u10, {}}, none, "PNG holds no samples of depth 10", "ask for 8 or 16"},
        {exr, {u16, {}}, none, "EXR holds no samples of depth 16", "ask for half or float"},
        {dpx, {half, {}}, none, "DPX holds no samples of depth half", "ask for 8, 10, 12 or 16"},
        {dpx, {u10, {}}, straight, "DPX holds no alpha at depth 10", "ask for 8 or 16"},
        {jpeg, {{}, "rgb24"}, none, "JPEG is not written as pixel format rgb24", "ask for yuv444p, yuv422p or yuv420p"},
    };
    for (const auto& [format, request, alpha, reason, hint] : cases)
    {
        const auto layout = choose_layout(format, picture_info(1, 1, u8, alpha), request);
        ASSERT_FALSE(layout);
        EXPECT_EQ(layout.error().reason, reason);
        EXPECT_EQ(layout.error().hint, hint);
    }
}

TEST(output_format, follows_from_the_extension_of_the_file_name)
{
    const auto format = format_of_path("a.exr/b.c.JPeG");
    ASSERT_TRUE(format);
    EXPECT_EQ(*format, still_format::jpeg);
    for (const char* path : {"a.png/b", "png", "a.", "a.gif", "", "a.png.txt"})
        EXPECT_FALSE(format_of_path(path)) << path;
}

} // namespace
} // namespace ov1::media
