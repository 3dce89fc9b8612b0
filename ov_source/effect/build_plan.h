// The numbers of one build of the table, in the order of its steps.
#pragma once

#include "effect/grade_settings.h"
#include "effect/lut/lut_argb.h"
#include "effect/lut/lut_point.h"
#include "effect/veridial_luts.h"

#include <vector>

namespace ov1
{

/// A table and how much of it acts, 1 being all.
struct table_share
{
    const lut_argb<lut_edge>* table;
    float amount;
};

/// The amounts of modify_skin_tones (skin_tones.h).
struct skin_push
{
    double protect;
    double chroma_push;
    double hue_push;
    double brightness;
};

struct build_plan
{
    bool bypass = false;                       ///< the identity; the rest is of no account
    std::vector<lut_point> wheels;             ///< bend the identity: master, shadows, mids, highlights
    std::vector<table_share> sky_and_greenery; ///< their sum is added, then limited
    skin_push skin{};
    double chroma_percent = 0.0;            ///< global: of the chroma there is
    double luminance_percent = 0.0;         ///< global: of white
    std::vector<table_share> saturation;    ///< each follows the table, by its amount
    std::vector<table_share> film_contrast; ///< each added and limited
};

/// The looks are pointed to, not copied.
build_plan plan_build(const grade_settings& settings, const veridial_luts& looks);

} // namespace ov1
