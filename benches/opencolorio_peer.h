// OpenColorIO's processor for a table of ours.
// The library is hidden behind a pointer, so that its headers are read in one file only.
#pragma once

#include "effect/lut/lut_argb.h"

#include <cstddef>
#include <memory>

namespace ov1::bench
{

/// How a peer reads between grid points. Ours is always trilinear.
enum class interpolation
{
    trilinear,
    tetrahedral,
};

/// 32-bit or 16-bit floats.
enum class sample_kind
{
    f32,
    f16,
};

/// Renders packed R, G, B, A of one sample kind, in and out, on the caller's thread.
class opencolorio_peer
{
public:
    /// Copies the table. Throws what OpenColorIO throws.
    opencolorio_peer(const lut_argb<lut_edge>& table, interpolation kind, sample_kind samples);
    ~opencolorio_peer();

    /// width x height pixels without gaps between rows; in and out do not overlap.
    void render(const void* in, void* out, std::size_t width, std::size_t height) const;

private:
    struct body;
    std::unique_ptr<body> peer;
};

} // namespace ov1::bench
