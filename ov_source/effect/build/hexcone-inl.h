// A chunk through the integer hexcone (integer_hsl.h) and back. Included once for every instruction set.
// The plain code computes with integers and doubles. Here all is in doubles: whole numbers below 2^53 and their sums
// and products are exact, so the results are the same integers.
#if defined(OV1_EFFECT_HEXCONE_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef OV1_EFFECT_HEXCONE_INL_H
#undef OV1_EFFECT_HEXCONE_INL_H
#else
#define OV1_EFFECT_HEXCONE_INL_H
#endif

#include "effect/build/entry_chunk-inl.h"
#include "effect/lut/integer_hsl.h"

HWY_BEFORE_NAMESPACE();
namespace ov1::build_kernel
{
namespace HWY_NAMESPACE
{

// Whole thousandths are kept in doubles, which hold them and their products exactly.
constexpr double full_milli = 100'000.0;  ///< 100 percent
constexpr double sector_milli = 60'000.0; ///< a sixth of the circle
constexpr double circle_milli = 360'000.0;

/// Code values 0..1, or 0..255 where a function says so.
struct rgb_vectors
{
    double_vector r, g, b;
};

/// The parts of colours whose channels are 0..255.
struct hexcone_vectors
{
    double_vector hue_milli; ///< whole, 0..359,999; 0 for greys
    double_vector chroma;    ///< largest minus smallest channel
    double_vector sum;       ///< of the largest and the smallest channel
};

/// integer_hsl's limited_milli; a NaN gives 0.
HWY_INLINE double_vector limited_milli_of(double_vector value)
{
    const doubles d;
    const auto positive = hn::IfThenElseZero(hn::Gt(value, hn::Zero(d)), value);
    return hn::Trunc(hn::Min(positive, hn::Set(d, full_milli)));
}

/// integer_hsl's hexcone_hue, made whole, and what it is computed from.
HWY_INLINE hexcone_vectors hexcone_of(const rgb_vectors& colour)
{
    const doubles d;
    const auto max = hn::Max(hn::Max(colour.r, colour.g), colour.b);
    const auto min = hn::Min(hn::Min(colour.r, colour.g), colour.b);
    const auto chroma = hn::Sub(max, min);
    // At a tie red comes first, then green, as in hexcone_hue.
    const auto red = hn::Eq(max, colour.r), green = hn::Eq(max, colour.g);
    // Each lane takes the difference of the two other channels, and the hue of the largest one as its centre.
    const auto difference =
        hn::IfThenElse(red, hn::Sub(colour.g, colour.b),
                       hn::IfThenElse(green, hn::Sub(colour.b, colour.r), hn::Sub(colour.r, colour.g)));
    const auto centre = hn::IfThenElse(
        red, hn::Zero(d), hn::IfThenElse(green, hn::Set(d, 2 * sector_milli), hn::Set(d, 4 * sector_milli)));
    const auto circle = hn::Set(d, circle_milli);
    auto hue = hn::Add(hn::Div(hn::Mul(difference, hn::Set(d, sector_milli)), chroma), centre);
    hue = hn::IfThenElse(hn::Lt(hue, hn::Zero(d)), hn::Add(hue, circle), hue);
    hue = hn::IfThenElse(hn::Lt(hue, circle), hue, hn::Sub(hue, circle));
    const auto is_colour = hn::Gt(chroma, hn::Zero(d)); // for a grey the quotient is 0 / 0
    return {hn::Trunc(hn::IfThenElseZero(is_colour, hue)), chroma, hn::Add(max, min)};
}

/// One channel of integer_hsl's rgb_of. A channel is high within one sector on each side of its own hue, falls to low
/// over the next sector, and is low beyond. rise_milli is the hue's distance from where the channel becomes low,
/// negative beyond it. So no lane needs to know its sector.
HWY_INLINE double_vector channel_of(double_vector rise_milli, double_vector low, double_vector range)
{
    const doubles d;
    const auto rise = hn::Min(at_least_0(d, rise_milli), hn::Set(d, sector_milli));
    const auto scaled = hn::Add(hn::Mul(low, hn::Set(d, sector_milli)), hn::Mul(range, rise)); // whole, below 2^53
    const auto milli = whole_quotient(d, scaled, sector_milli);
    // channel_of_milli with its divisions in one factor. The doubles can differ in the last bit, but their floats are
    // equal for each of the 100,001 possible values.
    constexpr double code_per_milli = 256'000.0 / 100'000.0 / 1000.0 / 255.0;
    return hn::Min(hn::Mul(milli, hn::Set(d, code_per_milli)), hn::Set(d, 1.0));
}

/// integer_hsl's rgb_of: hue in 0..359,999, chroma and lightness in 0..100,000, all whole.
HWY_INLINE rgb_vectors rgb_of(double_vector hue, double_vector chroma, double_vector lightness)
{
    const doubles d;
    const auto off_middle = hn::Abs(hn::Sub(lightness, hn::Set(d, full_milli / 2)));
    const auto allowed = hn::Sub(hn::Set(d, full_milli), hn::Add(off_middle, off_middle));
    // The integer division by 2 of the plain code.
    const auto half_range = hn::Trunc(hn::Mul(hn::Min(chroma, allowed), hn::Set(d, 0.5)));
    const auto low = hn::Sub(lightness, half_range);
    const auto range = hn::Add(half_range, half_range);

    const auto distance_from = [&](double centre) HWY_ATTR { return hn::Abs(hn::Sub(hue, hn::Set(d, centre))); };
    const auto reach = hn::Set(d, 2 * sector_milli); // green and blue are low this far from their hues
    // Red's hue is at both ends of the range, so red is measured from its complement, cyan.
    const auto red = hn::Sub(distance_from(3 * sector_milli), hn::Set(d, sector_milli));
    const auto green = hn::Sub(reach, distance_from(2 * sector_milli));
    const auto blue = hn::Sub(reach, distance_from(4 * sector_milli));
    return {channel_of(red, low, range), channel_of(green, low, range), channel_of(blue, low, range)};
}

/// Converts the entries to the hexcone and back. change(i, parts, chroma_milli, lightness_milli) sets the last two for
/// the vector that begins at entry i; they are then made whole and limited.
template <class function>
HWY_INLINE void through_hexcone(chunk& entries, const function& change)
{
    const doubles d;
    const few_floats f;
    for (std::size_t i = 0; i < chunk_entries; i += hn::Lanes(d))
    {
        // Floats become doubles before they are scaled, as in integer_hsl.
        const auto u8 = [&](const float* channel) HWY_ATTR
        { return hn::Mul(hn::PromoteTo(d, hn::LoadU(f, channel + i)), hn::Set(d, 255.0)); };
        const hexcone_vectors parts = hexcone_of({u8(entries.r), u8(entries.g), u8(entries.b)});
        double_vector chroma_milli, lightness_milli;
        change(i, parts, chroma_milli, lightness_milli);
        const rgb_vectors rgb =
            rgb_of(parts.hue_milli, limited_milli_of(chroma_milli), limited_milli_of(lightness_milli));
        hn::StoreU(hn::DemoteTo(f, rgb.r), f, entries.r + i);
        hn::StoreU(hn::DemoteTo(f, rgb.g), f, entries.g + i);
        hn::StoreU(hn::DemoteTo(f, rgb.b), f, entries.b + i);
    }
}

/// Global Chroma, in percent of the chroma of each entry, and Global Luminance, in percent of white.
HWY_INLINE void change_chroma_and_luminance(double chroma_percent, double luminance_percent, chunk& entries)
{
    const doubles d;
    through_hexcone(entries,
                    [&](std::size_t, const hexcone_vectors& parts, double_vector& chroma_milli,
                        double_vector& lightness_milli) HWY_ATTR
                    {
                        const auto thousand = hn::Set(d, 1000.0);
                        // Percent first, then thousandths: the roundings of with_chroma_and_luminance in the plain
                        // code.
                        const auto chroma = hn::Mul(parts.chroma, hn::Set(d, percent_per_u8));
                        const auto more = hn::Mul(hn::Set(d, chroma_percent / 100.0), chroma);
                        chroma_milli = hn::Mul(hn::Add(chroma, more), thousand);
                        const auto lightness = hn::Mul(parts.sum, hn::Set(d, half_sum_percent_per_u8));
                        lightness_milli = hn::Mul(hn::Add(lightness, hn::Set(d, luminance_percent)), thousand);
                    });
}

} // namespace HWY_NAMESPACE
} // namespace ov1::build_kernel
HWY_AFTER_NAMESPACE();

#endif
