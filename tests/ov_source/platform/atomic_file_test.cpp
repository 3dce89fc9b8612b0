#include "platform/atomic_file.h"
#include "platform/pending_file.h"
#include "support/plain_user.h"
#include "support/size_limit.h"
#include "support/temp_folder.h"

#include <atomic>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace ov1
{
namespace
{

namespace fs = std::filesystem;

std::span<const std::uint8_t> bytes_of(std::string_view text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

mode_t mode_of(const std::string& path)
{
    struct stat facts
    {
    };
    stat(path.c_str(), &facts);
    return facts.st_mode & 07777;
}

TEST(replace_file, writes_the_whole_file_and_leaves_nothing_beside_it)
{
    const temp_folder folder;
    std::string reason;
    for (const std::string_view text : {"a long first text", "short", ""})
    {
        ASSERT_TRUE(replace_file(folder / "f", bytes_of(text), reason)) << reason;
        EXPECT_EQ(text_of_file(folder / "f"), text);
    }
    EXPECT_EQ(folder.count(), 1);
}

TEST(replace_file, a_new_file_follows_the_users_mask_and_an_old_one_keeps_its_mode)
{
    const temp_folder folder;
    const mode_t mask = umask(027);
    std::string reason;
    EXPECT_TRUE(replace_file(folder / "new", {}, reason));
    folder.with_file("old", "x");
    chmod((folder / "old").c_str(), 0606);
    EXPECT_TRUE(replace_file(folder / "old", bytes_of("y"), reason));
    umask(mask);
    EXPECT_EQ(mode_of(folder / "new"), 0640u);
    EXPECT_EQ(mode_of(folder / "old"), 0606u);
}

TEST(replace_file, follows_links_to_the_file_that_they_mean)
{
    const temp_folder folder;
    folder.with_file("real/f", "old");
    fs::create_symlink("real/f", folder / "link");
    fs::create_symlink("link", folder / "second");
    fs::create_symlink("real/missing", folder / "dangling");
    fs::create_symlink("loop", folder / "loop");
    std::string reason;
    EXPECT_TRUE(replace_file(folder / "second", bytes_of("new"), reason)) << reason;
    EXPECT_TRUE(fs::is_symlink(folder / "second") && fs::is_symlink(folder / "link"));
    EXPECT_EQ(text_of_file(folder / "real/f"), "new");
    EXPECT_TRUE(replace_file(folder / "dangling", bytes_of("made"), reason)) << reason;
    EXPECT_EQ(text_of_file(folder / "real/missing"), "made");
    EXPECT_FALSE(replace_file(folder / "loop", {}, reason));
    EXPECT_EQ(reason, "too many symbolic links");
}

TEST(replace_file, writes_straight_into_what_is_no_regular_file)
{
    const temp_folder folder;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const int pipe = open((folder / "pipe").c_str(), O_RDONLY | O_NONBLOCK);
    std::string reason;
    EXPECT_TRUE(replace_file(folder / "pipe", bytes_of("through"), reason)) << reason;
    EXPECT_TRUE(create_file(folder / "pipe", bytes_of("!"), reason)) << "nothing is lost there: " << reason;
    char text[20] = {};
    EXPECT_EQ(read(pipe, text, sizeof text), 8);
    EXPECT_STREQ(text, "through!");
    close(pipe);
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));

    // What stands behind /dev/stdout may be a regular file, one that others write to as well.
    folder.with_file("log", "first");
    const int log = open((folder / "log").c_str(), O_WRONLY);
    const std::string name = "/proc/self/fd/" + std::to_string(log);
    fs::create_symlink(name, folder / "stdout");
    EXPECT_TRUE(replace_file(name, bytes_of(" second"), reason)) << reason;
    EXPECT_TRUE(replace_file(folder / "stdout", bytes_of(" third"), reason)) << reason;
    close(log);
    EXPECT_EQ(text_of_file(folder / "log"), "first second third");
}

TEST(replace_file, says_in_plain_words_why_it_failed_and_leaves_the_old_file)
{
    const temp_folder folder;
    folder.with_file("file", "old");
    folder.with_file("protected/x", "");
    folder.with_file("write-protected", "old");
    chmod((folder / "write-protected").c_str(), 0444);
    chmod((folder / "protected").c_str(), 0555);
    chmod(folder.path.c_str(), 0777);
    const struct
    {
        std::string path, reason;
    } rows[] = {
        {folder / "missing/f", "no such folder"},
        {folder / "file/f", "a part of the path is no folder"},
        {folder / "protected", "is a folder"},
        {folder / "missing/", "no such folder"},
        {folder / "protected/new", "permission denied"},
        {folder / "write-protected", "permission denied"},
        {folder / std::string(300, 'n'), "the name is too long"},
        {"/dev/full", "the disk is full"},
        {"", "no such folder"},
    };
    const plain_user plain;
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.path);
        std::string reason;
        EXPECT_FALSE(replace_file(row.path, bytes_of("new"), reason));
        EXPECT_EQ(reason, row.reason);
    }
    EXPECT_EQ(text_of_file(folder / "write-protected"), "old");
    EXPECT_EQ(folder.count(), 3) << "no temporary stays behind";
}

TEST(replace_file, a_file_that_does_not_fit_leaves_the_old_one_and_no_temporary)
{
    const temp_folder folder;
    folder.with_file("f", "old");
    std::string reason;
    {
        const size_limit limit(1000);
        EXPECT_FALSE(replace_file(folder / "f", bytes_of(std::string(5000, 'x')), reason));
    }
    EXPECT_EQ(reason, "the file would be larger than the system allows");
    EXPECT_EQ(text_of_file(folder / "f"), "old");
    EXPECT_EQ(folder.count(), 1);
}

TEST(create_file, never_replaces)
{
    const temp_folder folder;
    folder.with_file("f", "old");
    fs::create_symlink("missing", folder / "dangling");
    for (const char* name : {"f", "dangling"})
    {
        std::string reason;
        EXPECT_FALSE(create_file(folder / name, bytes_of("new"), reason)) << name;
        EXPECT_EQ(reason, "exists already") << name;
    }
    EXPECT_EQ(text_of_file(folder / "f"), "old");
    EXPECT_FALSE(fs::exists(folder / "missing"));

    // A file that appears between the opening and the commit stays.
    pending_file file;
    std::string reason;
    ASSERT_TRUE(file.open(folder / "g", existing_file::refuse, reason) && file.write(bytes_of("ours"), reason));
    folder.with_file("g", "theirs");
    EXPECT_FALSE(file.commit(reason));
    EXPECT_EQ(reason, "exists already");
    EXPECT_EQ(text_of_file(folder / "g"), "theirs");
    EXPECT_EQ(folder.count(), 3);
}

TEST(create_file, of_several_at_once_one_wins)
{
    const temp_folder folder;
    for (int round = 0; round < 20; ++round)
    {
        std::atomic<int> winners = 0;
        const auto create = [&](std::string_view text)
        {
            std::string reason;
            if (create_file(folder / std::to_string(round), bytes_of(text), reason))
                ++winners;
        };
        std::thread other(create, "one");
        create("two");
        other.join();
        EXPECT_EQ(winners, 1);
    }
}

TEST(pending_file, is_gone_without_a_commit)
{
    const temp_folder folder;
    std::string reason;
    {
        pending_file file;
        ASSERT_TRUE(file.open(folder / "f", existing_file::replace, reason));
        ASSERT_TRUE(file.write(bytes_of("half"), reason));
        EXPECT_EQ(folder.count(), 1);
        EXPECT_EQ(fs::path(file.get_path()).parent_path(), folder.path) << "the same file system as the target";
    }
    EXPECT_EQ(folder.count(), 0);
    EXPECT_TRUE(folder_takes_files(folder.path, reason));
    EXPECT_EQ(folder.count(), 0);
    EXPECT_FALSE(folder_takes_files(folder / "missing", reason));
    EXPECT_EQ(reason, "no such folder");
}

TEST(pending_file, abandoning_removes_every_temporary_and_ends_the_process)
{
    const temp_folder folder;
    const auto abandon = [&]
    {
        pending_file first, second, finished;
        std::string reason;
        if (first.open(folder / "a", existing_file::replace, reason) &&
            second.open(folder / "b", existing_file::refuse, reason) &&
            finished.open(folder / "c", existing_file::replace, reason) && finished.commit(reason))
            abandon_pending_files_and_exit(130);
    };
    EXPECT_EXIT(abandon(), testing::ExitedWithCode(130), "");
    EXPECT_TRUE(fs::exists(folder / "c"));
    EXPECT_EQ(folder.count(), 1);
}

TEST(read_file, gives_the_whole_file_or_a_reason)
{
    const temp_folder folder;
    const std::string text((1 << 16) + 1, 'x');
    folder.with_file("f", text);
    folder.with_file("empty", "");
    std::vector<std::uint8_t> bytes;
    std::string reason;
    ASSERT_TRUE(read_file(folder / "f", bytes, reason, text.size())) << "exactly as long as the limit";
    EXPECT_EQ(bytes.size(), text.size());
    ASSERT_TRUE(read_file("/proc/self/status", bytes, reason, 1 << 20)) << "a file that tells no size";
    EXPECT_FALSE(bytes.empty());
    ASSERT_TRUE(read_file(folder / "empty", bytes, reason, 0));
    EXPECT_TRUE(bytes.empty());

    bytes = {7};
    const struct
    {
        std::string path, reason;
    } rows[] = {
        {folder / "f", "is larger than 65536 bytes"},        {folder / "missing", "no such file"},
        {folder / "f/x", "a part of the path is no folder"}, {folder.path, "is a folder"},
        {"/dev/zero", "is larger than 65536 bytes"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.path);
        EXPECT_FALSE(read_file(row.path, bytes, reason, text.size() - 1));
        EXPECT_EQ(reason, row.reason);
        EXPECT_EQ(bytes, std::vector<std::uint8_t>{7});
    }
}

TEST(remove_file, takes_files_and_links_but_never_a_folder_or_what_a_link_means)
{
    const temp_folder folder;
    folder.with_file("real", "kept");
    fs::create_symlink("real", folder / "link");
    fs::create_directory(folder / "empty");
    std::string reason;
    EXPECT_TRUE(remove_file(folder / "link", reason)) << reason;
    EXPECT_EQ(text_of_file(folder / "real"), "kept");
    EXPECT_FALSE(remove_file(folder / "link", reason));
    EXPECT_EQ(reason, "no such file");
    EXPECT_FALSE(remove_file(folder / "empty", reason));
    EXPECT_EQ(reason, "is a folder");
    EXPECT_TRUE(remove_file(folder / "real", reason));
    EXPECT_EQ(folder.count(), 1);
}

} // namespace
} // namespace ov1
