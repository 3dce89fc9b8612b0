#include "effect/reference/lut.h"

#include <cmath>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

using table = lut_argb<17>;

constexpr float step = 4095.9375f; // from one grid point to the next

lut<17> bent(std::vector<lut_point> points)
{
    lut<17> t;
    t.update(std::move(points));
    return t;
}

TEST(lut, no_points_and_points_that_stay_give_the_identity)
{
    const argb_float grey{0, 30000, 31000, 32000};
    EXPECT_EQ(lut<17>().get_entries(), table().get_entries());
    EXPECT_EQ(bent({}).get_entries(), table().get_entries());
    EXPECT_EQ(bent({{grey, grey, 140, 0}}).get_entries(), table().get_entries());
}

TEST(lut, radius_and_values_are_limited_and_offsets_add_up)
{
    const argb_float source{0, 5 * step, 5 * step, 5 * step};
    const argb_float target{0, source.r + 6553.5f, source.g, source.b};
    const auto widest = bent({{source, target, 256, 0}}).get_entries(); // reach 262,144: every grid point moves
    const auto narrow = bent({{source, target, 1, 0}}).get_entries();   // reach 4: its own grid point only
    EXPECT_EQ(bent({{source, target, 300, 0}}).get_entries(), widest);
    EXPECT_EQ(bent({{source, target, -5, 0}}).get_entries(), narrow);
    EXPECT_NEAR(widest.front().r * 65535, 6553.5 * (1 - std::sqrt(75.0) * step / 262144), 0.3);
    std::size_t changed = 0;
    for (std::size_t i = 0; i < narrow.size(); ++i)
        changed += narrow[i] != table().get_entries()[i];
    EXPECT_EQ(changed, 1u);

    const lut<17> twice = bent({{source, target, 1, 0}, {source, target, 1, 0}});
    EXPECT_NEAR(twice.get_direct(5, 5, 5).r, 5 / 16.0 + 0.2, 1e-6);
    EXPECT_EQ(bent({{{}, {0, -50000, 90000, 0}, 256, 0}}).get_direct(0, 0, 0), (argb_float{1, 0, 1, 0}));
}

} // namespace
} // namespace ov1
