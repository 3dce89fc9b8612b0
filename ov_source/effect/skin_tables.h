// The reference tables of the skin pad.
#pragma once

#include "effect/lut/lut_argb.h"

namespace ov1
{

/// The tables that skin is pushed towards, made from the compiled-in data (skin_data.h).
struct skin_tables
{
    skin_tables();

    /// At full strength; the mask decides where each acts.
    lut_argb<lut_edge> lighter;
    lut_argb<lut_edge> darker;
    lut_argb<lut_edge> yellowish;
    lut_argb<lut_edge> reddened;
};

} // namespace ov1
