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

/// What the skin pad and its two arcs ask for. All at 0 change nothing.
struct skin_push
{
    double protect;     ///< 0..1: first moves skin towards the identity, against wheels and looks alike
    double chroma_push; ///< -1..1: more or less chroma, 40 percent at most
    double hue_push;    ///< -1..1: towards yellowish where positive, towards reddened where negative
    double brightness;  ///< -1..1: towards lighter where positive, towards darker where negative
};

inline constexpr double least_skin_push = 0.001; ///< a push or brightness of smaller magnitude does nothing
inline constexpr double most_skin_chroma_percent = 40.0;

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
