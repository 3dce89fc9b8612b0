#include "media/output_format.h"

#include <gtest/gtest.h>

namespace ov1::media
{
namespace
{

still_info source_of(depth d, alpha_kind alpha)
{
    still_info info;
    info.depth = d;
    info.alpha = alpha;
    return info;
}

TEST(output_format, keeps_the_depth_or_loses_least)
{
    using enum depth;
    using enum still_format;
    const struct
    {
        still_format format;
        depth source;
        bool alpha;
        depth written;
        bool written_alpha;
    } cases[] = {
        {png, u8, true, u8, true},      {png, u10, false, u16, false},        {png, full_float, true, u16, true},
        {png, half, false, u16, false}, {jpeg, u16, true, u8, false},         {jpeg, full_float, false, u8, false},
        {tiff, u12, false, u16, false}, {tiff, u16, true, u16, true},         {exr, u8, true, half, true},
        {exr, u10, false, half, false}, {exr, u12, false, full_float, false}, {exr, u16, false, full_float, false},
        {exr, half, true, half, true},  {dpx, u10, false, u10, false},        {dpx, u12, false, u12, false},
        {dpx, half, false, u16, false}, {dpx, u10, true, u16, true},          {dpx, u8, true, u8, true},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(std::string(name_of(c.format)) + " from " + std::string(name_of(c.source)));
        output_layout layout{};
        error why;
        const still_info source = source_of(c.source, c.alpha ? alpha_kind::straight : alpha_kind::none);
        ASSERT_TRUE(choose_layout(c.format, source, {}, layout, why)) << why.reason;
        EXPECT_EQ(layout.depth, c.written);
        EXPECT_EQ(layout.has_alpha, c.written_alpha);
    }
}

TEST(output_format, refuses_naming_what_the_format_holds)
{
    using enum depth;
    using enum still_format;
    using enum alpha_kind;
    const struct
    {
        still_format format;
        layout_request request;
        alpha_kind alpha;
        const char *reason, *hint;
    } cases[] = {
        {png, {u10, {}}, none, "PNG holds no samples of depth 10", "ask for 8 or 16"},
        {exr, {u16, {}}, none, "EXR holds no samples of depth 16", "ask for half or float"},
        {dpx, {half, {}}, none, "DPX holds no samples of depth half", "ask for 8, 10, 12 or 16"},
        {dpx, {u10, {}}, straight, "DPX holds no alpha at depth 10", "ask for 8 or 16"},
        {jpeg, {{}, "rgb24"}, none, "JPEG is not written as pixel format rgb24", "ask for yuv444p, yuv422p or yuv420p"},
    };
    for (const auto& c : cases)
    {
        output_layout layout{};
        error why;
        EXPECT_FALSE(choose_layout(c.format, source_of(u8, c.alpha), c.request, layout, why));
        EXPECT_EQ(why.reason, c.reason);
        EXPECT_EQ(why.hint, c.hint);
    }
}

TEST(output_format, is_told_by_the_extension_of_the_leaf)
{
    still_format format = still_format::other;
    error why;
    EXPECT_TRUE(format_of_path("a.exr/b.c.JPeG", format, why));
    EXPECT_EQ(format, still_format::jpeg);
    for (const char* path : {"a.png/b", "png", "a.", "a.gif", "", "a.png.txt"})
        EXPECT_FALSE(format_of_path(path, format, why)) << path;
    EXPECT_EQ(format, still_format::jpeg) << "untouched";
}

} // namespace
} // namespace ov1::media
