#include "platform/settings_store.h"
#include "support/plain_user.h"
#include "support/temp_folder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <thread>

namespace ov1
{
namespace
{

TEST(settings_store, gives_a_value_only_under_its_own_kind)
{
    const temp_folder folder;
    const settings_store store(folder / "deep/er/x.settings");
    std::uint32_t number = 77;
    EXPECT_FALSE(store.get("k", number)) << "no file yet";
    ASSERT_TRUE(store.set("k", std::string("5")));
    EXPECT_FALSE(store.get("k", number));
    EXPECT_EQ(number, 77u);
    ASSERT_TRUE(store.set("k", 0u));
    EXPECT_TRUE(store.get("k", number));
    EXPECT_EQ(number, 0u);
    std::string text = "kept";
    EXPECT_FALSE(store.get("k", text));
    EXPECT_EQ(text, "kept");
    EXPECT_TRUE(store.remove("k"));
    EXPECT_FALSE(store.get("k", number));
    EXPECT_TRUE(store.remove("k"));
}

TEST(settings_store, refuses_an_empty_key_and_a_missing_path)
{
    const temp_folder folder;
    EXPECT_FALSE(settings_store(folder / "s").set("", 1u));
    EXPECT_FALSE(settings_store(folder / "s").remove(""));
    EXPECT_EQ(folder.count(), 0);
    EXPECT_FALSE(settings_store("").set("k", 1u));
}

TEST(settings_store, loses_no_key_when_several_write_at_once)
{
    const temp_folder folder;
    constexpr std::uint32_t count = 20;
    const auto write = [&](const std::string& name)
    {
        const settings_store store(folder / "s");
        for (std::uint32_t i = 0; i < count; ++i)
            EXPECT_TRUE(store.set(name + std::to_string(i), i));
    };
    std::thread first(write, "a");
    std::thread second(write, "b");
    first.join();
    second.join();
    const settings_store store(folder / "s");
    for (const char* name : {"a", "b"})
        for (std::uint32_t i = 0; i < count; ++i)
        {
            std::uint32_t value = count;
            EXPECT_TRUE(store.get(name + std::to_string(i), value) && value == i) << name << i;
        }
}

TEST(settings_store, keeps_the_old_file_when_the_new_one_does_not_fit)
{
    const temp_folder folder;
    const settings_store store(folder / "s");
    ASSERT_TRUE(store.set("k", 1u));
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before;
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit tight{1024, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    const bool stored = store.set("k", std::string(5000, 'x'));
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_FALSE(stored);
    std::uint32_t value = 0;
    EXPECT_TRUE(store.get("k", value));
    EXPECT_EQ(value, 1u);
}

TEST(settings_store, does_not_overwrite_what_it_cannot_read)
{
    const temp_folder folder;
    const std::string path = folder.with_file("s", "uint32 a 1\n");
    namespace fs = std::filesystem;
    fs::permissions(folder.path, fs::perms::all);
    fs::permissions(path, static_cast<fs::perms>(0222));
    {
        const plain_user plain;
        EXPECT_FALSE(settings_store(path).set("k", 1u));
    }
    EXPECT_EQ(text_of_file(path), "uint32 a 1\n");
}

} // namespace
} // namespace ov1
