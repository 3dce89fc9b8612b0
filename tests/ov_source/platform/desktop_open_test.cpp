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

TEST(desktop_open, distinguishes_urls_from_paths)
{
    for (const char* text : {"https://example.org/a?b=c", "mailto:a@example.org", "file:///tmp/x", "/tmp/index.html"})
        EXPECT_EQ(opener_argument(text), text);
    for (const std::string text : {"index.html", "--help", "my picture: 1.png", "a:", "1a:b", ":x"})
        EXPECT_EQ(opener_argument(text), "./" + text);
}

TEST(desktop_open, passes_the_text_to_the_opener_without_a_shell)
{
    const temp_folder folder;
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    const std::string script =
        folder.with_file("xdg-open", "#!/bin/sh\nprintf '%s' \"$#:$1\" > '" + folder / "pipe" + "'\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    const std::string path = std::getenv("PATH");
    const int pipe = open((folder / "pipe").c_str(), O_RDONLY | O_NONBLOCK);

    setenv("PATH", (folder.path + ':' + path).c_str(), 1);
    EXPECT_TRUE(open_with_desktop("/a b/$(touch x)'\"; c"));
    pollfd waited{pipe, POLLIN, 0};
    EXPECT_EQ(poll(&waited, 1, 20'000), 1);
    setenv("PATH", folder.path.c_str(), 1);
    std::filesystem::remove(script);
    EXPECT_FALSE(open_with_desktop("/x")) << "there is no opener";
    setenv("PATH", path.c_str(), 1);
    EXPECT_FALSE(open_with_desktop(""));
    std::array<char, 100> text{};
    EXPECT_GT(read(pipe, text.data(), text.size() - 1), 0);
    EXPECT_STREQ(text.data(), "1:/a b/$(touch x)'\"; c");
    close(pipe);
}

} // namespace
} // namespace ov1
