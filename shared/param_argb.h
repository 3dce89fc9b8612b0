// The value of a colour parameter.
#pragma once

namespace ov1
{

/// Four floats in the order alpha, red, green, blue, each within 0..1 where the value is valid.
struct param_argb
{
    float alpha = 0.0f;
    float red = 0.0f;
    float green = 0.0f;
    float blue = 0.0f;

    /// Compares all channels; a NaN is not equal to anything, itself included.
    bool operator==(const param_argb&) const = default;
};

static_assert(sizeof(param_argb) == 16);

} // namespace ov1
