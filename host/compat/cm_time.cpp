#include <CoreMedia/CMTime.h>

#include <limits>

// The host's framework passes both by value, so the layout must be the same.
static_assert(sizeof(CMTime) == 24 && sizeof(CMTimeRange) == 48);

namespace
{

/// In the order in which times compare.
enum class rank
{
    negative_infinity,
    number,
    indefinite,
    positive_infinity,
    invalid,
};

rank rank_of(CMTime time)
{
    // Checked first: without this flag the others mean nothing.
    if (!(time.flags & kCMTimeFlags_Valid))
        return rank::invalid;
    if (time.flags & kCMTimeFlags_PositiveInfinity)
        return rank::positive_infinity;
    if (time.flags & kCMTimeFlags_NegativeInfinity)
        return rank::negative_infinity;
    return time.flags & kCMTimeFlags_Indefinite ? rank::indefinite : rank::number;
}

template <typename T>
std::int32_t compared(const T& a, const T& b)
{
    return a < b ? -1 : b < a ? 1 : 0;
}

__extension__ typedef __int128 wide; // holds the product of 64 and 32 bits

} // namespace

extern "C"
{

    const CMTime kCMTimeZero{0, 1, kCMTimeFlags_Valid, 0};
    const CMTime kCMTimeInvalid{0, 0, 0, 0};
    const CMTime kCMTimeIndefinite{0, 0, kCMTimeFlags_Valid | kCMTimeFlags_Indefinite, 0};
    const CMTime kCMTimePositiveInfinity{0, 0, kCMTimeFlags_Valid | kCMTimeFlags_PositiveInfinity, 0};
    const CMTime kCMTimeNegativeInfinity{0, 0, kCMTimeFlags_Valid | kCMTimeFlags_NegativeInfinity, 0};

    CMTime CMTimeMake(std::int64_t value, std::int32_t timescale)
    {
        return timescale > 0 ? CMTime{value, timescale, kCMTimeFlags_Valid, 0} : kCMTimeInvalid;
    }

    std::int32_t CMTimeCompare(CMTime a, CMTime b)
    {
        if (rank_of(a) != rank_of(b) || rank_of(a) != rank::number)
            return compared(rank_of(a), rank_of(b));
        if (a.epoch != b.epoch)
            return compared(a.epoch, b.epoch);
        // Cross products, not seconds: 1001/30000 and its neighbours are too close for a double at large values.
        return compared(wide{a.value} * b.timescale, wide{b.value} * a.timescale);
    }

    double CMTimeGetSeconds(CMTime time)
    {
        using limits = std::numeric_limits<double>;
        switch (rank_of(time))
        {
        case rank::number:
            return static_cast<double>(time.value) / time.timescale;
        case rank::positive_infinity:
            return limits::infinity();
        case rank::negative_infinity:
            return -limits::infinity();
        // Indefinite and invalid times.
        default:
            return limits::quiet_NaN();
        }
    }

    CMTimeRange CMTimeRangeMake(CMTime start, CMTime duration) { return {start, duration}; }

} // extern "C"
