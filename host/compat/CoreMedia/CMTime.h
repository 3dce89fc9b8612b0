// Rational time values as in CoreMedia, for systems without it.
// Source: developer.apple.com, "CMTime", and its companions.
#pragma once

#include <cstdint>

extern "C"
{

    using CMTimeValue = std::int64_t;
    using CMTimeScale = std::int32_t;
    using CMTimeEpoch = std::int64_t;
    using CMTimeFlags = std::uint32_t;

    enum : CMTimeFlags
    {
        kCMTimeFlags_Valid = 1,
        kCMTimeFlags_HasBeenRounded = 2,
        kCMTimeFlags_PositiveInfinity = 4,
        kCMTimeFlags_NegativeInfinity = 8,
        kCMTimeFlags_Indefinite = 16,
        kCMTimeFlags_ImpliedValueFlagsMask = 28,
    };

    /// value / timescale seconds.
    typedef struct
    {
        CMTimeValue value;
        CMTimeScale timescale;
        CMTimeFlags flags;
        CMTimeEpoch epoch;
    } CMTime;

    typedef struct
    {
        CMTime start;
        CMTime duration;
    } CMTimeRange;

    extern const CMTime kCMTimeZero;
    extern const CMTime kCMTimeInvalid;
    extern const CMTime kCMTimeIndefinite;
    extern const CMTime kCMTimePositiveInfinity;
    extern const CMTime kCMTimeNegativeInfinity;

    /// Invalid for a timescale that is not positive.
    CMTime CMTimeMake(std::int64_t value, std::int32_t timescale);
    /// Returns -1, 0 or 1 and compares exactly: 1/2 equals 2/4. The order is -infinity < numbers < indefinite <
    /// +infinity < invalid. A number of a later epoch is always greater.
    std::int32_t CMTimeCompare(CMTime a, CMTime b);
    /// NaN for indefinite and invalid times, an infinity for an infinite one.
    double CMTimeGetSeconds(CMTime time);
    CMTimeRange CMTimeRangeMake(CMTime start, CMTime duration);

} // extern "C"
