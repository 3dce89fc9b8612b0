// The reference tables of the skin pad.
#pragma once

#include "effect/lut/lut_argb.h"

namespace ov1
{

/// What a skin push mixes in, made from the compiled-in data.
struct skin_tables
{
    skin_tables();

    lut_argb<lut_edge> lighter;
    lut_argb<lut_edge> darker;
    lut_argb<lut_edge> yellowish;
    lut_argb<lut_edge> reddened;
};

} // namespace ov1
