#include "command_line/frame_pattern.h"

#include "command_line/frame_progress.h"

#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

TEST(frame_pattern, numbers_stand_where_printf_puts_them)
{
    const struct
    {
        const char* path;
        const char* seventh; ///< empty for no pattern
        const char* largest; ///< of 123456
    } rows[] = {
        {"shot.%04d.exr", "shot.0007.exr", "shot.123456.exr"},
        {"a/%d.png", "a/7.png", "a/123456.png"},
        {"a%b/x%03d", "a%b/x007", "a%b/x123456"},
        {"a%04d/b.png", "", ""},
        {"a%4d.png", "", ""},
        {"100%.png", "", ""},
        {"%d-%d.png", "", ""},
        {"%", "", ""},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.path);
        const auto pattern = find_frame_pattern(row.path);
        ASSERT_EQ(pattern.has_value(), *row.seventh != '\0');
        if (pattern)
        {
            EXPECT_EQ(pattern->name_of(7), row.seventh);
            EXPECT_EQ(pattern->name_of(123456), row.largest);
        }
    }
}

TEST(frame_pattern, existing_frames_are_found_in_order_and_others_left)
{
    const temp_folder folder;
    for (const char* name : {"s.0010.png", "s.0009.png", "s.12345.png", "s.9.png", "s.00011.png", "s.0012.jpg",
                             "t.0013.png", "s.00a1.png"})
        folder.with_file(name, "x");
    EXPECT_EQ(existing_frames(*find_frame_pattern(folder / "s.%04d.png")), (std::vector{9, 10, 12345}));
}

TEST(frame_pattern, a_range_is_two_numbers_or_one)
{
    const auto both = read_frame_range("101-200");
    EXPECT_TRUE(both && both->first == 101 && both->last == 200);
    const auto one = read_frame_range("7");
    EXPECT_TRUE(one && one->first == 7 && one->last == 7);
    for (const char* wrong : {"", "-", "5-", "-5", "9-8", "1-2-3", "a", "1.5-2"})
        EXPECT_FALSE(read_frame_range(wrong)) << wrong;
}

TEST(frame_progress, says_frames_rate_and_time_left_as_far_as_they_are_known)
{
    EXPECT_EQ(frame_progress_text(0, 100, 0, 4), "[>   ] 0 of 100");
    EXPECT_EQ(frame_progress_text(50, 100, 4, 4), "[==> ] 50 of 100, 12.5 fps, 0:04 left");
    EXPECT_EQ(frame_progress_text(60, 0, 2, 4), "60 frames, 30.0 fps");
    EXPECT_EQ(frame_progress_text(9, 8, 3, 4), "[====] 8 of 8, 3.0 fps, 0:00 left");
    EXPECT_EQ(duration_text(3723.4), "1:02:03");
}

} // namespace
} // namespace ov1
