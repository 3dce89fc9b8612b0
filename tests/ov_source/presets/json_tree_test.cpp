#include "presets/json_tree.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

TEST(json_tree, keeps_values_in_order_and_containers_to_the_given_level)
{
    json_value root;
    std::string reason;
    ASSERT_TRUE(parse_json(R"({"a":[1,{"b":[2,3],"c":4},-5.5],"a":6,"d":{}})", 3, root, reason)) << reason;
    ASSERT_EQ(root.as_object()->size(), 3u);
    EXPECT_EQ(root.find("b"), nullptr);
    const auto& a = *root.find("a")->as_array(); // the first of two members
    ASSERT_EQ(a.size(), 3u);
    ASSERT_EQ(a[1].as_object()->size(), 2u);
    EXPECT_TRUE(a[1].find("b")->as_array()->empty()) << "within three others";
    EXPECT_TRUE(is_whole_within(a[0], 1, 1) && is_whole_within(*a[1].find("c"), 4, 4));
    EXPECT_EQ(a[2].as_number()->value, -5.5);
    EXPECT_FALSE(is_whole_within(a[2], -6, -5));
}

} // namespace
} // namespace ov1
