#include "host/bridge/connected_host.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

TEST(connected_host, a_version_is_read_up_to_the_first_part_that_is_no_number)
{
    const struct
    {
        const char* text;
        version wanted;
        const char* shown;
    } rows[] = {
        {"10.6.5", {10, 6, 5, 0}, "10.6.5"},
        {"11", {11, 0, 0, 0}, "11.0.0"},
        {"10.8.1.2.9", {10, 8, 1, 2}, "10.8.1"},
        {"10.b.3", {10, 0, 0, 0}, "10.0.0"},
        {"", {0, 0, 0, 0}, "0.0.0"},
        {"1.99999999999.3", {1, 0, 0, 0}, "1.0.0"},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(version_from_text(row.text), row.wanted);
        EXPECT_EQ(version_text(version_from_text(row.text)), row.shown);
    }
}

} // namespace
} // namespace ov1
