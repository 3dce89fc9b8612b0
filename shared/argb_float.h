// One colour sample of the engine: four floats, alpha first.
#pragma once

namespace ov1
{

/// A colour in display-referred code values, nominally 0..1 in every channel. Values outside are legal between the
/// steps of a build; nothing here clamps them. Trivially copyable, 16 bytes, in the order a, r, g, b: preview images
/// hold rows of it.
struct argb_float
{
    float a = 0.0f;
    float r = 0.0f;
    float g = 0.0f;
    float b = 0.0f;

    /// Compares all channels; a NaN is not equal to anything.
    bool operator==(const argb_float&) const = default;
};

// Images are rows of four floats per pixel without padding.
static_assert(sizeof(argb_float) == 16);

} // namespace ov1
