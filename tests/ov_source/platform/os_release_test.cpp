#include "platform/os_release.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

TEST(os_release, gives_the_pretty_name_without_its_quotes)
{
    const struct
    {
        const char *text, *name;
    } rows[] = {
        {"NAME=\"Debian\"\nPRETTY_NAME=\"Debian GNU/Linux 12 (bookworm)\"\nID=debian\n",
         "Debian GNU/Linux 12 (bookworm)"},
        {"PRETTY_NAME='Void'", "Void"},
        {"PRETTY_NAME=Plain\n", "Plain"},
        {"PRETTY_NAME=\"a \\\"b\\\" \\$c\"\n", "a \"b\" $c"},
        {"PRETTY_NAME=\"\n", "\""},
        {"PRETTY_NAME=\n", ""},
        {"#PRETTY_NAME=x\nNOT_PRETTY_NAME=y\n", ""},
        {"", ""},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(pretty_name_of_os_release(row.text), row.name);
    }
}

TEST(os_release, a_kernel_release_gives_three_numbers)
{
    const struct
    {
        const char *release, *version;
    } rows[] = {
        {"6.1.0-13-amd64", "6.1.0"}, {"6.12.5.7", "6.12.5"}, {"6.1", "6.1.0"},
        {"6.9-rc1", "6.9.0"},        {"7", "7.0.0"},         {"rolling", ""},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.release);
        EXPECT_EQ(version_of_kernel_release(row.release), row.version);
    }
}

} // namespace
} // namespace ov1
