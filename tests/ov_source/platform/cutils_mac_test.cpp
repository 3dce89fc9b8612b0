#include "platform/cocoa/cutils_mac.h"

#include "support/temp_folder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

namespace ov1
{
namespace
{

using bytes = std::vector<std::uint8_t>;

/// This program uses a home folder of its own.
struct cutils_mac_test : ::testing::Test
{
    cutils_mac utils{"com.orvane.test_vendor", "com.orvane.test_product"};
    bytes data;
    std::string text;
};

TEST_F(cutils_mac_test, the_two_suites_are_separate_and_persistent)
{
    EXPECT_TRUE(utils.set_bytes("k", bytes{1, 2, 3}) && utils.set_vendor_string("k", "Größe"));
    cutils_mac again("com.orvane.test_vendor", "com.orvane.test_product");
    EXPECT_TRUE(again.get_bytes("k", data) && again.get_vendor_string("k", text));
    EXPECT_EQ(data, (bytes{1, 2, 3}));
    EXPECT_EQ(text, "Größe");
    EXPECT_FALSE(utils.get_string("k", text) || utils.get_vendor_bytes("k", data)) << "another kind of value";
    EXPECT_TRUE(utils.del_bytes("k") && utils.del_vendor_key("k"));
    EXPECT_FALSE(utils.get_bytes("k", data) || utils.get_vendor_string("k", text));
    EXPECT_EQ(text, "Größe") << "unchanged after a failure";
}

TEST_F(cutils_mac_test, an_empty_key_or_settings_name_stores_nothing)
{
    std::uint32_t number = 5;
    cutils_mac product_only("", "com.orvane.test_product");
    EXPECT_FALSE(utils.set_bytes("", bytes{1}) || product_only.set_vendor_uint32("k", 1));
    EXPECT_FALSE(utils.get_vendor_uint32("never set", number));
    EXPECT_EQ(number, 5u);
    EXPECT_TRUE(utils.set_vendor_uint32("n", 4000000000u) && utils.get_vendor_uint32("n", number));
    EXPECT_EQ(number, 4000000000u);
    EXPECT_TRUE(utils.del_vendor_key("n"));
}

TEST_F(cutils_mac_test, folders)
{
    const temp_folder folder;
    EXPECT_TRUE(utils.create_dir(folder / "new"));
    struct stat facts{};
    ASSERT_EQ(stat((folder / "new").c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777u, 0777u) << "whatever the umask";
    EXPECT_FALSE(utils.create_dir(folder / "new") || utils.create_dir(""));
    folder.with_file("file", "");
    std::vector<std::string> files, folders;
    ASSERT_TRUE(utils.list_dir(folder.path, &files, &folders, true));
    EXPECT_EQ(files, std::vector<std::string>{folder / "file"});
    EXPECT_EQ(folders, std::vector<std::string>{folder / "new"});
    EXPECT_TRUE(utils.get_common_directory().ends_with("/Library/Application Support/Orvane"));
    EXPECT_TRUE(std::filesystem::is_directory(utils.get_common_directory()));
    EXPECT_FALSE(utils.get_resource("../passwd", data) || utils.get_resource("", data));
}

} // namespace
} // namespace ov1
