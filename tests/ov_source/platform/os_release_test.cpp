#include "platform/os_release.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

TEST(os_release, gives_the_pretty_name_without_its_quotes)
{
    const std::pair<const char*, const char*> rows[] = {
        {"NAME=\"Debian\"\nPRETTY_NAME=\"Debian 12 (bookworm)\"\nID=debian\n", "Debian 12 (bookworm)"},
        {"PRETTY_NAME='Void'", "Void"},
        {"PRETTY_NAME=Plain\n", "Plain"},
        {"PRETTY_NAME=\"\n", "\""},
        {"", ""},
        {"PRETTY_NAME=\"a \\\"b\\\" \\$c\"\n", "a \"b\" $c"},
        {"PRETTY_NAME=\n", ""},
        {"#PRETTY_NAME=x\nNOT_PRETTY_NAME=y\n", ""}};
    for (const auto& [text, name] : rows)
        EXPECT_EQ(pretty_name_of_os_release(text), name) << text;
}

TEST(os_release, a_kernel_release_gives_three_numbers)
{
    const std::pair<const char*, const char*> rows[] = {
        {"6.1.0-13-amd64", "6.1.0"}, {"6.12.5.7", "6.12.5"}, {"6.1", "6.1.0"},
        {"6.9-rc1", "6.9.0"},        {"7", "7.0.0"},         {"rolling", ""}};
    for (const auto& [release, version] : rows)
        EXPECT_EQ(version_of_kernel_release(release), version) << release;
}

} // namespace
} // namespace ov1
