// What one build of the table does: the amounts and tables of each step, in the order of the steps.
// A plan holds decisions and amounts, no entries of the table. The vector code and the plain code follow the same plan.
#pragma once

#include "effect/grade_settings.h"
#include "effect/lut/lut_argb.h"
#include "effect/lut/lut_point.h"
#include "effect/veridial_luts.h"

#include <vector>

namespace ov1
{

/// A table and how much of it acts; 1 is all of it.
struct table_share
{
    /// Not owned and never null.
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
/// The chroma, in percentage points, that a push of 1 adds at full weight.
inline constexpr double most_skin_chroma_percent = 40.0;

/// Everything that a build needs to know of the parameters.
struct build_plan
{
    bool bypass = false;                       ///< the table is the identity; the rest is ignored
    std::vector<lut_point> wheels;             ///< bend the identity: master, shadows, mids, highlights
    std::vector<table_share> sky_and_greenery; ///< added together, then to the table, then limited to 0..1
    skin_push skin{};
    double chroma_percent = 0.0;            ///< added, of the chroma of each entry
    double luminance_percent = 0.0;         ///< added, of white
    std::vector<table_share> saturation;    ///< the entries are looked up in each, by its amount
    std::vector<table_share> film_contrast; ///< each added and limited to 0..1
};

/// The plan of a grade. It points into looks, which must outlive it.
build_plan plan_build(const grade_settings& settings, const veridial_luts& looks);

} // namespace ov1
