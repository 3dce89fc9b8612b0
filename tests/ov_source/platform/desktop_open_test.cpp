#include "platform/desktop_open.h"
#include "support/temp_folder.h"

#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ov1
{
namespace
{

TEST(desktop_open, tells_urls_from_paths)
{
    const struct
    {
        const char *text, *argument;
    } rows[] = {
        {"https://example.org/a?b=c", "https://example.org/a?b=c"},
        {"mailto:a@example.org", "mailto:a@example.org"},
        {"file:///tmp/x", "file:///tmp/x"},
        {"/tmp/manual/index.html", "/tmp/manual/index.html"},
        {"index.html", "./index.html"},
        {"--help", "./--help"},
        {"my picture: 1.png", "./my picture: 1.png"},
        {"a:", "./a:"},
        {"1a:b", "./1a:b"},
        {":x", "./:x"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(opener_argument(row.text), row.argument);
    }
}

TEST(desktop_open, hands_the_text_to_the_opener_untouched_by_a_shell)
{
    const temp_folder folder;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const std::string script =
        folder.with_file("xdg-open", "#!/bin/sh\nprintf '%s' \"$#:$1\" > '" + folder / "pipe" + "'\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    const std::string path = std::getenv("PATH");
    const int pipe = open((folder / "pipe").c_str(), O_RDONLY | O_NONBLOCK);

    setenv("PATH", (folder.path + ':' + path).c_str(), 1);
    const bool started = open_with_desktop("/a b/$(touch x)'\"; c");
    pollfd waited{pipe, POLLIN, 0};
    const int answers = poll(&waited, 1, 20'000);
    setenv("PATH", folder.path.c_str(), 1);
    std::filesystem::remove(script);
    const bool started_without_opener = open_with_desktop("/x");
    setenv("PATH", path.c_str(), 1);

    EXPECT_FALSE(started_without_opener);
    EXPECT_FALSE(open_with_desktop(""));
    ASSERT_TRUE(started);
    ASSERT_EQ(answers, 1);
    std::array<char, 100> text{};
    EXPECT_GT(read(pipe, text.data(), text.size() - 1), 0);
    EXPECT_STREQ(text.data(), "1:/a b/$(touch x)'\"; c");
    close(pipe);
}

} // namespace
} // namespace ov1
