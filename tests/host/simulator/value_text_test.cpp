#include "host/simulator/value_text.h"

#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

using doubles = std::numeric_limits<double>;

TEST(value_text, reads_back_to_the_bit)
{
    const std::pair<store_value, const char*> rows[] = {
        {0.1, "float 0.1"},
        {-12.0, "float -12"},
        {doubles::denorm_min(), nullptr},
        {doubles::max(), nullptr},
        {std::numeric_limits<int>::min(), "int -2147483648"},
        {true, "bool 1"},
        {false, "bool 0"},
        {store_color{1, 0.1, -0.25, 0.5}, "color 1 0.1 -0.25 0.5"},
    };
    for (const auto& [value, text] : rows)
    {
        SCOPED_TRACE(text_of_value(value));
        if (text != nullptr)
        {
            EXPECT_EQ(text_of_value(value), text);
        }
        EXPECT_EQ(value_of_text(text_of_value(value)), value);
    }
    EXPECT_EQ(text_of_value(store_archive{1, 2}), "");
}

TEST(value_text, other_texts_are_no_value)
{
    for (const char* text : {"", "float", "float x", "float 1 2", "float  1", "float 1 ", "float nan", "float inf",
                             "float 1e999", "int 1.5", "int 2147483648", "bool 2", "bool -1", "color 1 2 3",
                             "color 1 2 3 nan", "color 1 2 3 4 5", "Float 1", "word 1"})
        EXPECT_FALSE(value_of_text(text)) << text;
}

TEST(time_text, reads_back_and_refuses_times_without_a_timescale)
{
    const CMTime time{-1001, 30000, kCMTimeFlags_Valid | kCMTimeFlags_HasBeenRounded, 7};
    EXPECT_EQ(text_of_time(time), "-1001 30000 3 7");
    const auto back = time_of_text("-1001 30000 3 7");
    ASSERT_TRUE(back);
    EXPECT_EQ(back->flags, time.flags);
    EXPECT_EQ(CMTimeCompare(*back, time), 0);
    for (const char* text :
         {"", "1", "1 30000 1", "1 30000 1 0 0", "1 0 1 0", "1 -24 1 0", "1 30000 -1 0", "1/2 1 1 0"})
        EXPECT_FALSE(time_of_text(text)) << text;
}

} // namespace
} // namespace ov1
