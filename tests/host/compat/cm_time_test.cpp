#include <CoreMedia/CMTime.h>

#include <gtest/gtest.h>
#include <limits>

namespace ov1
{
namespace
{

TEST(cm_time, compares_as_fractions_by_rank_and_by_epoch)
{
    const CMTime ordered[] = {kCMTimeNegativeInfinity,
                              CMTimeMake(-1, 3),
                              kCMTimeZero,
                              CMTimeMake(1001, 30001),
                              CMTimeMake(1001, 30000),
                              CMTimeMake(std::numeric_limits<std::int64_t>::max(), 1),
                              {0, 1, kCMTimeFlags_Valid, 1},
                              kCMTimeIndefinite,
                              kCMTimePositiveInfinity,
                              kCMTimeInvalid};
    for (std::size_t i = 0; i < std::size(ordered); ++i)
        for (std::size_t k = 0; k < std::size(ordered); ++k)
            EXPECT_EQ(CMTimeCompare(ordered[i], ordered[k]), i < k ? -1 : i > k ? 1 : 0) << i << ' ' << k;
    EXPECT_EQ(CMTimeCompare(CMTimeMake(1, 2), CMTimeMake(2, 4)), 0);
    EXPECT_EQ(CMTimeCompare(CMTimeMake(1, 0), kCMTimeInvalid), 0);
}

} // namespace
} // namespace ov1
