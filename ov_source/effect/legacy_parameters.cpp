#include "effect/legacy_parameters.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ov1
{

namespace
{

/// The number in a record, read as the type of the record; a NaN for types without one.
double number_in(const param_value& value)
{
    switch (value.type)
    {
    case param_type::continuous:
        return value.value.as_continuous();
    case param_type::integral:
        return value.value.as_integral();
    case param_type::boolean:
        return value.value.as_boolean() ? 1.0 : 0.0;
    case param_type::color:
    case param_type::unset:
        break;
    }
    return std::numeric_limits<double>::quiet_NaN();
}

/// The angle at which the pad has the look bright (kind 1), olive (2) or yellow (3). Another kind gives `otherwise`.
float greenery_angle_of(double kind, float otherwise)
{
    const double whole = std::trunc(kind);
    if (whole == 1.0)
        return 90.0f;
    if (whole == 2.0)
        return 270.0f;
    return whole == 3.0 ? 0.0f : otherwise;
}

} // namespace

std::vector<parameter_change> legacy_parameters::map(uid id, const param_value& value, float greenery_angle)
{
    const double v = number_in(value);
    if (!std::isfinite(v))
        return {};
    const auto strength = static_cast<float>(std::abs(v));

    constexpr uid greenery_kind = make_uid("Greenery Kind"), sky = make_uid("Sky"),
                  film_contrast = make_uid("Film Contrast"), boost_skin_tones = make_uid("Boost Skin Tones"),
                  skin_tone_hue = make_uid("Skin Tone Hue");
    if (id == greenery_kind)
        return {{parameter_index::greenery_angle, greenery_angle_of(v, greenery_angle)}};
    if (id == sky)
        return {{parameter_index::sky_angle, v >= 0.0 ? 90.0f : 270.0f}, {parameter_index::sky_strength, strength}};
    if (id == film_contrast) // the opposite direction of "Sky", and 90 at 0: both intended
        return {{parameter_index::film_contrast_angle, v > 0.0 ? 270.0f : 90.0f},
                {parameter_index::film_contrast_strength, strength}};
    if (id == boost_skin_tones)
        boost = v;
    else if (id == skin_tone_hue)
        hue = v;
    else
        return {};
    return map_skin();
}

std::vector<parameter_change> legacy_parameters::map_skin() const
{
    if (boost == not_received || hue == not_received)
        return {};
    // The skin pad has more colour at 0 degrees and yellowish at 90 (skin_square.h).
    const double degrees = std::atan2(hue, boost) * 180.0 / std::numbers::pi;
    const double strength = std::min(std::sqrt(boost * boost + hue * hue), 100.0);
    return {{parameter_index::skin_tone_strength, static_cast<float>(strength)},
            {parameter_index::skin_angle, static_cast<float>(degrees < 0.0 ? degrees + 360.0 : degrees)}};
}

} // namespace ov1
