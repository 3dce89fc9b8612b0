#include "editor/callout_text.h"

#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

TEST(callout_text, is_the_number_a_blank_and_the_unit)
{
    const struct
    {
        float value;
        int precision;
        const char* unit;
        const char* text;
    } cases[] = {
        {-37.4F, 0, "%", "-37 %"}, {-37.4F, 0, "", "-37"},        {-37.4F, 1, "°", "-37.4 °"}, {12.96F, 1, "", "13.0"},
        {100.0F, 2, "", "100.00"}, {-0.4F, 0, "%", "0 %"},        {-0.04F, 1, "", "0.0"},      {-0.06F, 1, "", "-0.1"},
        {5.25F, -3, "", "5"},      {0.5F, 99, "", "0.500000000"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(callout_text(c.value, c.precision, c.unit), c.text);
    EXPECT_EQ(callout_text(std::numeric_limits<float>::lowest(), 9, "").size(), 50U) << "sign, 39 digits, point, 9";
}

} // namespace
} // namespace ov1
