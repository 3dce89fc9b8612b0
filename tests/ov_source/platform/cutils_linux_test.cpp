#include "platform/cutils_linux.h"
#include "platform/desktop_services.h"
#include "platform/utils_guard.h"
#include "support/temp_folder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

namespace ov1
{
namespace
{

namespace fs = std::filesystem;
using bytes = std::vector<std::uint8_t>;

class cutils_linux_test : public testing::Test
{
protected:
    ~cutils_linux_test() override { install_desktop_services({}); }

    temp_folder folder;
    user_environment environment{folder / "config/orvane", folder / "data/orvane", folder / "share", 0.0,
                                 language_id::english};
    cutils_linux utils{"vendor", "veridial", environment};
};

TEST_F(cutils_linux_test, vendor_and_product_settings_are_separate)
{
    bytes data;
    std::string text;
    EXPECT_TRUE(utils.set_bytes("k", bytes{1, 2, 3}) && utils.set_vendor_string("k", "Größe"));
    EXPECT_TRUE(utils.get_bytes("k", data) && utils.get_vendor_string("k", text));
    EXPECT_EQ(data, (bytes{1, 2, 3}));
    EXPECT_EQ(text, "Größe");
    EXPECT_FALSE(utils.get_string("k", text) || utils.get_vendor_bytes("k", data));
    EXPECT_TRUE(utils.set_vendor_bytes("v", bytes{9}) && utils.get_vendor_bytes("v", data));
    EXPECT_EQ(data, bytes{9});
    EXPECT_TRUE(utils.del_bytes("k"));
    EXPECT_FALSE(utils.get_bytes("k", data));
    EXPECT_TRUE(utils.get_vendor_string("k", text) && utils.del_vendor_key("k"));
    EXPECT_FALSE(utils.get_vendor_string("k", text));
    EXPECT_EQ(text, "Größe") << "unchanged after a failure";
}

TEST_F(cutils_linux_test, an_empty_key_or_settings_name_stores_nothing)
{
    std::uint32_t number = 5;
    cutils_linux product_only("", "veridial", environment);
    EXPECT_FALSE(utils.set_bytes("", bytes{1}) || utils.set_vendor_uint32("", 1));
    EXPECT_FALSE(utils.get_vendor_uint32("never set", number) || product_only.set_vendor_uint32("k", 1));
    EXPECT_EQ(number, 5u);
    EXPECT_FALSE(fs::exists(folder / "config"));
    EXPECT_TRUE(product_only.set_string("k", "x"));
    EXPECT_TRUE(utils.set_vendor_uint32("k", 4000000000u) && utils.get_vendor_uint32("k", number));
    EXPECT_EQ(number, 4000000000u);
}

TEST_F(cutils_linux_test, resources_come_from_the_top_level_only)
{
    for (const char* name : {"share/look.v2.bin", "share/plain", "share/sub/x.bin", "secret.bin"})
        folder.with_file(name, "abc");
    bytes data{7};
    for (const char* name : {"", "look.v2", "look.bin", "sub/x.bin", "../secret.bin", "sub", ".", ".."})
        EXPECT_FALSE(utils.get_resource(name, data)) << name;
    EXPECT_EQ(data, bytes{7});
    EXPECT_TRUE(utils.get_resource("look.v2.bin", data));
    EXPECT_EQ(data, (bytes{'a', 'b', 'c'}));
    EXPECT_TRUE(utils.get_resource("plain", data));
}

TEST_F(cutils_linux_test, create_dir_creates_one_directory_with_the_users_umask)
{
    const mode_t mask = umask(027);
    EXPECT_TRUE(utils.create_dir(folder / "d"));
    umask(mask);
    EXPECT_EQ(fs::status(folder / "d").permissions(), static_cast<fs::perms>(0750));
    for (const std::string& path : {folder / "d", folder / "a/b", std::string()})
        EXPECT_FALSE(utils.create_dir(path)) << path;
    EXPECT_EQ(utils.get_common_directory(), folder / "data/orvane");
    EXPECT_TRUE(fs::is_directory(folder / "data/orvane"));
}

TEST_F(cutils_linux_test, list_dir_separates_directories_from_other_entries)
{
    folder.with_file("l/a.json", "");
    folder.with_file("l/.hidden", "");
    fs::create_directory(folder / "l/d");
    fs::create_directory_symlink(folder / "l/d", folder / "l/link");
    std::vector<std::string> files{"old"}, directories{"old"};
    EXPECT_FALSE(utils.list_dir("", &files, &directories, false));
    EXPECT_FALSE(utils.list_dir(folder / "l", nullptr, nullptr, false));
    EXPECT_FALSE(utils.list_dir(folder / "missing", &files, &directories, false));
    EXPECT_EQ(files, std::vector<std::string>{"old"});

    ASSERT_TRUE(utils.list_dir(folder / "l", &files, &directories, false));
    std::ranges::sort(files);
    EXPECT_EQ(files, (std::vector<std::string>{".hidden", "a.json", "link"}));
    EXPECT_EQ(directories, std::vector<std::string>{"d"});
    for (const std::string& path : {folder / "l", folder / "l/"})
    {
        ASSERT_TRUE(utils.list_dir(path, nullptr, &directories, true));
        EXPECT_EQ(directories, std::vector<std::string>{folder / "l/d"});
    }
}

TEST_F(cutils_linux_test, uses_desktop_services_or_defaults)
{
    int width = 0, height = 0;
    utils.get_screen_dimensions(nullptr, width, height);
    EXPECT_EQ(std::pair(width, height), std::pair(1920, 1080));
    EXPECT_EQ(utils.get_dpi_scale(), 1.0);
    testing::internal::CaptureStderr();
    EXPECT_FALSE(utils.alert_box(nullptr, "Title", "What happened", "OK"));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Title: What happened\n");

    std::string shown;
    double dpi = 143;
    bool knows_screen = true;
    desktop_services services;
    services.show_alert = [&](void*, const auto& title, const auto& message, const auto& first, const auto& second)
    { return !(shown = title + '|' + message + '|' + first + '|' + second).empty(); };
    services.query_screen = [&](void*, int& w, int& h) { return w = 3840, h = 2160, knows_screen; };
    services.query_dpi = [&] { return dpi; };
    install_desktop_services(services);
    EXPECT_TRUE(utils.alert_box(nullptr, "t", "m", "OK"));
    EXPECT_EQ(shown, "t|m|OK|") << "no second button";
    EXPECT_TRUE(utils.alert_box(nullptr, "t", "m", "Yes", "No"));
    EXPECT_EQ(shown, "t|m|Yes|No");
    for (const auto& size : {std::pair(3840, 2160), {1920, 1080}})
    {
        utils.get_screen_dimensions(nullptr, width, height);
        EXPECT_EQ(std::pair(width, height), size);
        knows_screen = false;
    }
    EXPECT_EQ(utils.get_dpi_scale(), 1.0);
    dpi = 144;
    EXPECT_EQ(utils.get_dpi_scale(), 2.0);
    environment.scale = 1.25;
    EXPECT_EQ(cutils_linux("", "", environment).get_dpi_scale(), 1.25) << "VERIDIAL_SCALE has priority";
}

TEST_F(cutils_linux_test, a_guard_replaces_the_utilities)
{
    iutils& usual = iutils::get_instance();
    cutils_linux other("", "", environment);
    {
        const utils_guard outer(utils);
        {
            const utils_guard inner(other);
            EXPECT_EQ(&iutils::get_instance(), &other);
        }
        EXPECT_EQ(&iutils::get_instance(), &utils);
    }
    EXPECT_EQ(&iutils::get_instance(), &usual);
}

} // namespace
} // namespace ov1
