#include "media/base/byte_view.h"

#include <gtest/gtest.h>

namespace ov1::media
{
namespace
{

using namespace std::string_view_literals;

TEST(byte_view, reads_zero_beyond_the_end)
{
    const std::uint8_t bytes[] = {1, 2, 3};
    const byte_view view(bytes);
    EXPECT_EQ(view.u32(0), 0x01020300u);
    EXPECT_EQ(view.u16(SIZE_MAX - 1), 0u);
    EXPECT_EQ(byte_view(bytes, false).u16(1), 0x0302u);
    EXPECT_TRUE(view.has(1, "\2\3"));
    EXPECT_FALSE(view.has(2, "\3\0"sv));
    EXPECT_FALSE(view.has(4, ""));
    EXPECT_FALSE(view.has(SIZE_MAX, "\1"));
    EXPECT_EQ(view.part(2, 9).size(), 1u);
    EXPECT_EQ(view.part(9).size(), 0u);
}

} // namespace
} // namespace ov1::media
