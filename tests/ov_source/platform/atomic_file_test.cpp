#include "platform/atomic_file.h"
#include "platform/pending_file.h"
#include "support/plain_user.h"
#include "support/size_limit.h"
#include "support/temp_folder.h"

#include <atomic>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <optional>
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

struct on_files : testing::Test
{
    /// Keeps the reason of a failure.
    bool done(const result<>& outcome)
    {
        if (outcome)
            return true;
        EXPECT_EQ(outcome.error().kind, failure_kind::cannot_write);
        reason = outcome.error().reason;
        return false;
    }

    bool replace(const std::string& path, std::string_view text) { return done(replace_file(path, bytes_of(text))); }
    bool create(const std::string& path, std::string_view text) { return done(create_file(path, bytes_of(text))); }

    temp_folder folder;
    std::string reason;
};

TEST_F(on_files, replacing_writes_the_file_keeps_its_mode_and_leaves_no_temporary)
{
    const mode_t mask = umask(027);
    for (const std::string_view text : {"a long first text", "short", ""})
    {
        EXPECT_TRUE(replace(folder / "f", text)) << reason;
        EXPECT_EQ(text_of_file(folder / "f"), text);
    }
    umask(mask);
    EXPECT_EQ(fs::status(folder / "f").permissions(), fs::perms{0640}) << "a new file follows the user's umask";
    fs::permissions(folder / "f", fs::perms{0606});
    EXPECT_TRUE(replace(folder / "f", "y"));
    EXPECT_EQ(fs::status(folder / "f").permissions(), fs::perms{0606}) << "an old one keeps its mode";
    EXPECT_EQ(folder.count(), 1);
}

TEST_F(on_files, replacing_follows_links_and_replaces_their_target)
{
    folder.with_file("real/f", "old");
    for (const auto& [link, target] :
         {std::pair("link", "real/f"), {"second", "link"}, {"dangling", "real/missing"}, {"loop", "loop"}})
        fs::create_symlink(target, folder / link);
    EXPECT_TRUE(replace(folder / "second", "new")) << reason;
    EXPECT_TRUE(fs::is_symlink(folder / "second") && fs::is_symlink(folder / "link"));
    EXPECT_EQ(text_of_file(folder / "real/f"), "new");
    EXPECT_TRUE(replace(folder / "dangling", "made")) << reason;
    EXPECT_EQ(text_of_file(folder / "real/missing"), "made");
    EXPECT_FALSE(replace(folder / "loop", ""));
    EXPECT_EQ(reason, "too many symbolic links");
}

TEST_F(on_files, replacing_writes_directly_to_pipes_and_open_files)
{
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const int pipe = open((folder / "pipe").c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_TRUE(replace(folder / "pipe", "through")) << reason;
    EXPECT_TRUE(create(folder / "pipe", "!")) << "a pipe has no content to lose: " << reason;
    char text[20] = {};
    EXPECT_EQ(read(pipe, text, sizeof text), 8);
    EXPECT_STREQ(text, "through!");
    close(pipe);
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));

    // /dev/stdout may be a regular file that others write to as well.
    folder.with_file("log", "first");
    const int log = open((folder / "log").c_str(), O_WRONLY);
    const std::string name = "/proc/self/fd/" + std::to_string(log);
    fs::create_symlink(name, folder / "stdout");
    EXPECT_TRUE(replace(name, " second")) << reason;
    EXPECT_TRUE(replace(folder / "stdout", " third")) << reason;
    close(log);
    EXPECT_EQ(text_of_file(folder / "log"), "first second third");
}

TEST_F(on_files, replacing_gives_a_plain_reason_and_keeps_the_old_file)
{
    folder.with_file("file", "old");
    fs::create_directory(folder / "protected");
    folder.with_file("write-protected", "old");
    fs::permissions(folder / "write-protected", fs::perms{0444});
    fs::permissions(folder / "protected", fs::perms{0555});
    fs::permissions(folder.path, fs::perms::all);
    const std::pair<std::string, const char*> rows[] = {{folder / "missing/f", "no such folder"},
                                                        {folder / "file/f", "a part of the path is not a folder"},
                                                        {folder / "protected", "is a folder"},
                                                        {folder / "missing/", "no such folder"},
                                                        {"", "no such folder"},
                                                        {folder / "protected/new", "permission denied"},
                                                        {folder / "write-protected", "permission denied"},
                                                        {folder / std::string(300, 'n'), "the name is too long"},
                                                        {"/dev/full", "the disk is full"}};
    {
        const plain_user plain;
        for (const auto& [path, expected] : rows)
        {
            EXPECT_FALSE(replace(path, "new")) << path;
            EXPECT_EQ(reason, expected) << path;
        }
    }
    {
        const size_limit limit(1000);
        EXPECT_FALSE(replace(folder / "file", std::string(5000, 'x')));
    }
    EXPECT_EQ(reason, "the file would be larger than the system allows");
    EXPECT_EQ(text_of_file(folder / "file") + text_of_file(folder / "write-protected"), "oldold");
    EXPECT_EQ(folder.count(), 3) << "no temporary file is left";
}

TEST_F(on_files, creating_never_replaces)
{
    folder.with_file("f", "old");
    fs::create_symlink("missing", folder / "dangling");
    for (const char* name : {"f", "dangling"})
    {
        EXPECT_FALSE(create(folder / name, "new")) << name;
        EXPECT_EQ(reason, "already exists") << name;
    }
    EXPECT_EQ(text_of_file(folder / "f"), "old");
    EXPECT_FALSE(fs::exists(folder / "missing"));

    // A file that appears between open and commit is kept.
    pending_file file;
    ASSERT_TRUE(file.open(folder / "g", existing_file::refuse) && file.write(bytes_of("ours")));
    folder.with_file("g", "theirs");
    EXPECT_FALSE(done(file.commit()));
    EXPECT_EQ(reason, "already exists");
    EXPECT_EQ(text_of_file(folder / "g"), "theirs");
    EXPECT_EQ(folder.count(), 3);
}

TEST_F(on_files, only_one_of_several_creating_threads_succeeds)
{
    for (int round = 0; round < 20; ++round)
    {
        std::atomic<int> winners = 0;
        const auto make = [&, path = folder / std::to_string(round)]
        { winners += create_file(path, bytes_of("x")) ? 1 : 0; };
        std::thread other(make);
        make();
        other.join();
        EXPECT_EQ(winners, 1);
    }
}

TEST_F(on_files, a_pending_file_without_a_commit_is_removed)
{
    {
        pending_file file;
        ASSERT_TRUE(file.open(folder / "f", existing_file::replace));
        ASSERT_TRUE(file.write(bytes_of("half")));
        EXPECT_EQ(folder.count(), 1);
        EXPECT_EQ(fs::path(file.get_path()).parent_path(), folder.path) << "the same file system as the target";
    }
    EXPECT_EQ(folder.count(), 0);
    EXPECT_TRUE(folder_takes_files(folder.path));
    EXPECT_EQ(folder.count(), 0);
    EXPECT_FALSE(done(folder_takes_files(folder / "missing")));
    EXPECT_EQ(reason, "no such folder");
}

TEST_F(on_files, abandoning_removes_temporary_files_and_ends_the_process)
{
    const auto abandon = [&]
    {
        pending_file first, second, finished;
        if (first.open(folder / "a", existing_file::replace) && second.open(folder / "b", existing_file::refuse) &&
            finished.open(folder / "c", existing_file::replace) && finished.commit())
            abandon_pending_files_and_exit(130);
    };
    EXPECT_EXIT(abandon(), testing::ExitedWithCode(130), "");
    EXPECT_TRUE(fs::exists(folder / "c"));
    EXPECT_EQ(folder.count(), 1);
}

TEST_F(on_files, reading_gives_the_whole_file_or_a_reason)
{
    const std::string text((1 << 16) + 1, 'x');
    folder.with_file("f", text);
    const auto size_read = [](const std::string& path, std::size_t limit)
    {
        const auto bytes = read_file(path, limit);
        return bytes ? std::optional(bytes->size()) : std::nullopt;
    };
    EXPECT_EQ(size_read(folder / "f", text.size()), text.size()) << "exactly as long as the limit";
    EXPECT_GT(size_read("/proc/self/status", 1 << 20), 0U) << "a file that reports no size";
    EXPECT_EQ(size_read(folder.with_file("empty", ""), 0), 0U);

    const std::pair<std::string, const char*> rows[] = {{folder / "f", "is larger than 65536 bytes"},
                                                        {folder / "missing", "no such file"},
                                                        {folder / "f/x", "a part of the path is not a folder"},
                                                        {folder.path, "is a folder"},
                                                        {"/dev/zero", "is larger than 65536 bytes"}};
    for (const auto& [path, expected] : rows)
    {
        SCOPED_TRACE(path);
        const auto bytes = read_file(path, text.size() - 1);
        ASSERT_FALSE(bytes);
        EXPECT_EQ(bytes.error(), (failure{failure_kind::unreadable, {}, expected}));
    }
}

TEST_F(on_files, removing_removes_files_and_links_but_no_folder_or_link_target)
{
    folder.with_file("real", "kept");
    fs::create_symlink("real", folder / "link");
    fs::create_directory(folder / "empty");
    EXPECT_TRUE(remove_file(folder / "link"));
    EXPECT_EQ(text_of_file(folder / "real"), "kept");
    EXPECT_FALSE(done(remove_file(folder / "link")));
    EXPECT_EQ(reason, "no such file");
    EXPECT_FALSE(done(remove_file(folder / "empty")));
    EXPECT_EQ(reason, "is a folder");
    EXPECT_TRUE(remove_file(folder / "real"));
    EXPECT_EQ(folder.count(), 1);
}

} // namespace
} // namespace ov1
