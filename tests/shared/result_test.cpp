#include "shared/result.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace ov1
{
namespace
{

const failure disk_full{failure_kind::cannot_write, "out.png", "the disk is full", "free some space"};

TEST(result, holds_a_value_or_a_failure)
{
    const result<std::string> text("read");
    ASSERT_TRUE(text);
    EXPECT_EQ(*text, "read");
    EXPECT_EQ(text->size(), 4u);

    const result<std::string> refused(disk_full);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error(), disk_full);
}

TEST(result, a_default_value_is_not_a_failure)
{
    EXPECT_TRUE(result<int>(0));
    EXPECT_TRUE(result<bool>(false));
    EXPECT_TRUE(result<>());
    EXPECT_FALSE(result<>(failure{}));
}

TEST(result, its_value_can_be_moved_out)
{
    result<std::unique_ptr<int>> owner(std::make_unique<int>(7));
    const std::unique_ptr<int> taken = *std::move(owner);
    EXPECT_EQ(*taken, 7);
}

TEST(failure, about_sets_the_subject_and_keeps_the_rest)
{
    const failure named = about("shot.mov", disk_full);
    EXPECT_EQ(named.subject, "shot.mov");
    EXPECT_EQ(named.kind, disk_full.kind);
    EXPECT_EQ(named.reason, disk_full.reason);
    EXPECT_EQ(named.hint, disk_full.hint);
}

} // namespace
} // namespace ov1
