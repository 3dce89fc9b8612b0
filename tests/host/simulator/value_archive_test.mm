#include "host/simulator/value_archive.h"

#include "support/pool_guard.h"

#include <cstring>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

/// GNUstep does not declare NSData and NSString as secure coding, which macOS does.
id bytes_of(const char* text) { return [NSData dataWithBytes:text length:std::strlen(text)]; }
id text_of(const char* text) { return [NSString stringWithUTF8String:text]; }

TEST(value_archive, decodes_the_expected_class_and_its_subclasses_else_names_the_other_one)
{
    const pool_guard pool;
    const auto archive = archive_value(bytes_of("grade"));
    const auto back = unarchive_value(archive, [NSData class]);
    ASSERT_TRUE(back) << back.error().reason;
    EXPECT_TRUE([*back isEqual:bytes_of("grade")]);
    EXPECT_TRUE(unarchive_value(archive, [NSObject class]));
    const auto decoded = unarchive_value(archive_value(text_of("text")), [NSData class]);
    ASSERT_FALSE(decoded);
    EXPECT_EQ(decoded.error().kind, failure_kind::invalid_grade);
    EXPECT_NE(decoded.error().reason.find("String"), std::string::npos) << decoded.error().reason;
}

TEST(value_archive, nothing_and_every_cut_archive_fail)
{
    const pool_guard pool;
    EXPECT_TRUE(archive_value(nil).empty());
    const auto whole = archive_value(bytes_of("grade"));
    for (std::size_t size = 0; size < whole.size(); ++size)
    {
        const pool_guard of_one;
        const auto decoded = unarchive_value({whole.begin(), whole.begin() + static_cast<long>(size)}, [NSData class]);
        ASSERT_FALSE(decoded) << size;
        EXPECT_NE(decoded.error().reason, "") << size;
    }
}

} // namespace
} // namespace ov1
