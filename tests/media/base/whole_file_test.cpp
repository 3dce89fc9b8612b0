#include "media/base/whole_file.h"

#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace ov1::media
{
namespace
{

TEST(whole_file, holds_the_bytes_with_zeros_after_them)
{
    const temp_folder folder;
    const auto file = whole_file::read(folder.with_file("a.bin", "\xFF\xFE\xFD"));
    ASSERT_TRUE(file);
    ASSERT_EQ(file->bytes().size(), 3u);
    EXPECT_EQ(file->bytes()[2], 0xFD);
    for (int i = 3; i < 3 + 64; ++i) // as many as libav may read beyond the end
        ASSERT_EQ(file->bytes().data()[i], 0) << i;
}

TEST(whole_file, refuses_what_is_no_file_with_content)
{
    const temp_folder folder;
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::pair<std::string, const char*> rows[] = {
        {folder / "none", "no such file"},
        {folder.path, "is a folder"},
        {folder.with_file("empty", ""), "the file is empty"},
        {pipe, "is not a regular file"}, // opening it would block
    };
    for (const auto& [path, reason] : rows)
    {
        const auto file = whole_file::read(path);
        ASSERT_FALSE(file) << path;
        EXPECT_EQ(file.error().kind, failure_kind::unreadable);
        EXPECT_EQ(file.error().reason, reason);
    }
}

} // namespace
} // namespace ov1::media
