#include "presets/json_tree.h"

#include <array>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

constexpr std::array<std::string_view, 2> a_and_d{"a", "d"};

TEST(json_tree, keeps_values_in_order_and_containers_to_the_given_level)
{
    const auto root = parse_json(R"({"a":[1,{"b":[2,3],"c":4},-5.5],"a":6,"d":{}})", {a_and_d, 3});
    ASSERT_TRUE(root) << root.error().reason;
    ASSERT_EQ(root->as_object()->size(), 3u);
    EXPECT_EQ(root->find("b"), nullptr);
    const auto& a = *root->find("a")->as_array(); // the first of two members
    ASSERT_EQ(a.size(), 3u);
    ASSERT_EQ(a[1].as_object()->size(), 2u);
    EXPECT_TRUE(a[1].find("b")->as_array()->empty()) << "inside three others";
    EXPECT_TRUE(is_whole_within(a[0], 1, 1) && is_whole_within(*a[1].find("c"), 4, 4));
    EXPECT_EQ(a[2].as_number()->value, -5.5);
    EXPECT_FALSE(is_whole_within(a[2], -6, -5));
}

TEST(json_tree, members_that_are_not_asked_for_are_checked_and_left_out)
{
    // Members of the same names deeper down stay, and what follows a left-out container is kept.
    const auto root = parse_json(
        R"({"x":[1,{"a":[2]}],"a":{"x":7,"y":[8]},"y":"z","z":{"d":{}},"w":{},"d":9,"v":null})", {a_and_d, 4});
    ASSERT_TRUE(root) << root.error().reason;
    ASSERT_EQ(root->as_object()->size(), 2u);
    EXPECT_TRUE(is_whole_within(*root->find("a")->find("x"), 7, 7));
    EXPECT_EQ(root->find("a")->find("y")->as_array()->size(), 1u);
    EXPECT_TRUE(is_whole_within(*root->find("d"), 9, 9));
    for (const char* damaged : {R"({"x":[1,2.])", R"({"x":[1e999],"a":1})", R"({"x":{"a" 1}})", "{\"x\":\"\xFF\"}"})
    {
        const auto refused = parse_json(damaged, {a_and_d, 4});
        ASSERT_FALSE(refused) << damaged;
        EXPECT_EQ(refused.error().kind, failure_kind::invalid_grade);
        EXPECT_EQ(refused.error().reason.find("not valid JSON at byte "), 0u) << refused.error().reason;
    }
}

} // namespace
} // namespace ov1
