// OpenColorIO's processor for a table of ours.
#pragma once

#include "effect/lut/lut_argb.h"

#include <cstddef>
#include <memory>

namespace ov1::bench
{

enum class interpolation
{
    trilinear,
    tetrahedral,
};

enum class sample_kind
{
    f32,
    f16,
};

/// Renders packed R, G, B, A of one sample kind, in and out, on the caller's thread.
class opencolorio_peer
{
public:
    opencolorio_peer(const lut_argb<lut_edge>& table, interpolation kind, sample_kind samples);
    ~opencolorio_peer();

    void render(const void* in, void* out, std::size_t width, std::size_t height) const;

private:
    struct body;
    std::unique_ptr<body> peer;
};

} // namespace ov1::bench
