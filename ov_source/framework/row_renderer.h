// Renders rows of pixels with one state of the effect.
#pragma once

#include "shared/argb_float.h"

#include <cstddef>

namespace ov1
{

/// Taken once for a tile or a picture, so that all its rows are rendered alike whatever changes meanwhile.
class row_renderer
{
public:
    virtual ~row_renderer() = default;

    /// Renders count pixels of row y. in and out may be the same. Safe from several threads at once.
    virtual void render_row(std::size_t y, const argb_float* in, argb_float* out, std::size_t count) const = 0;
};

} // namespace ov1
