#include "platform/settings_store.h"
#include "support/plain_user.h"
#include "support/size_limit.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <thread>

namespace ov1
{
namespace
{

TEST(settings_store, returns_a_value_only_as_its_own_kind)
{
    const temp_folder folder;
    const settings_store store(folder / "deep/er/x.settings");
    std::uint32_t number = 77;
    std::string text = "kept";
    EXPECT_FALSE(store.get("k", number)) << "no file yet";
    ASSERT_TRUE(store.set("k", std::string("5")));
    EXPECT_FALSE(store.get("k", number));
    EXPECT_EQ(number, 77u);
    ASSERT_TRUE(store.set("k", 0u));
    EXPECT_FALSE(store.get("k", text));
    EXPECT_TRUE(store.get("k", number) && number == 0 && text == "kept");
    EXPECT_TRUE(store.remove("k") && store.remove("k"));
    EXPECT_FALSE(store.get("k", number));

    EXPECT_FALSE(settings_store(folder / "s").set("", 1u) || settings_store(folder / "s").remove(""));
    EXPECT_EQ(folder.count(), 1) << "an empty key makes no file";
    EXPECT_FALSE(settings_store("").set("k", 1u));
}

TEST(settings_store, concurrent_writers_lose_no_key)
{
    const temp_folder folder;
    const settings_store store(folder / "s");
    const auto write = [&](const std::string& name)
    {
        for (std::uint32_t i = 0; i < 20; ++i)
            EXPECT_TRUE(settings_store(folder / "s").set(name + std::to_string(i), i));
    };
    std::thread other(write, "a");
    write("b");
    other.join();
    for (std::uint32_t i = 0; i < 40; ++i)
    {
        std::uint32_t value = 99;
        EXPECT_TRUE(store.get(std::string(1, i < 20 ? 'a' : 'b') + std::to_string(i % 20), value) && value == i % 20)
            << i;
    }
}

TEST(settings_store, keeps_the_old_file_when_the_disk_is_full)
{
    const temp_folder folder;
    const settings_store store(folder / "s");
    ASSERT_TRUE(store.set("k", 1u));
    {
        const size_limit limit(1024);
        EXPECT_FALSE(store.set("k", std::string(5000, 'x')));
    }
    std::uint32_t value = 0;
    EXPECT_TRUE(store.get("k", value));
    EXPECT_EQ(value, 1u);
}

TEST(settings_store, does_not_overwrite_a_file_that_it_cannot_read)
{
    const temp_folder folder;
    const std::string path = folder.with_file("s", "uint32 a 1\n");
    std::filesystem::permissions(folder.path, std::filesystem::perms::all);
    std::filesystem::permissions(path, static_cast<std::filesystem::perms>(0222));
    {
        const plain_user plain;
        EXPECT_FALSE(settings_store(path).set("k", 1u));
    }
    EXPECT_EQ(text_of_file(path), "uint32 a 1\n");
}

} // namespace
} // namespace ov1
