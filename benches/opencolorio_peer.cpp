#include "opencolorio_peer.h"

#include <OpenColorIO/OpenColorIO.h>

namespace OCIO = OCIO_NAMESPACE;

namespace ov1::bench
{

struct opencolorio_peer::body
{
    OCIO::ConstCPUProcessorRcPtr processor;
    OCIO::BitDepth depth;
};

opencolorio_peer::opencolorio_peer(const lut_argb<lut_edge>& table, interpolation kind, sample_kind samples)
    : peer(std::make_unique<body>())
{
    const auto transform = OCIO::Lut3DTransform::Create(lut_edge);
    transform->setInterpolation(kind == interpolation::trilinear ? OCIO::INTERP_LINEAR : OCIO::INTERP_TETRAHEDRAL);
    for (unsigned long r = 0; r < lut_edge; ++r)
        for (unsigned long g = 0; g < lut_edge; ++g)
            for (unsigned long b = 0; b < lut_edge; ++b)
            {
                const argb_float& entry = table.get_direct(r, g, b);
                transform->setValue(r, g, b, entry.r, entry.g, entry.b);
            }
    // Samples keep their depth from input to output.
    peer->depth = samples == sample_kind::f32 ? OCIO::BIT_DEPTH_F32 : OCIO::BIT_DEPTH_F16;
    peer->processor = OCIO::Config::CreateRaw()->getProcessor(transform)->getOptimizedCPUProcessor(
        peer->depth, peer->depth, OCIO::OPTIMIZATION_DEFAULT);
}

opencolorio_peer::~opencolorio_peer() = default;

void opencolorio_peer::render(const void* in, void* out, std::size_t width, std::size_t height) const
{
    const std::ptrdiff_t sample = peer->depth == OCIO::BIT_DEPTH_F32 ? 4 : 2;
    const auto describe = [&](void* data)
    {
        return OCIO::PackedImageDesc(data, static_cast<long>(width), static_cast<long>(height),
                                     OCIO::CHANNEL_ORDERING_RGBA, peer->depth, sample, 4 * sample,
                                     static_cast<std::ptrdiff_t>(4 * width) * sample);
    };
    auto to = describe(out);
    peer->processor->apply(describe(const_cast<void*>(in)), to);
}

} // namespace ov1::bench
