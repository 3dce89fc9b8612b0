// FFmpeg's lut3d filter with the same table.
// Frames go through a graph of buffer source, filter and sink, as in a player.
#pragma once

#include "effect/lut/lut_argb.h"
#include "opencolorio_peer.h"

#include <cstddef>
#include <memory>
#include <string>

namespace ov1::bench
{

/// One filter graph on one thread. Frames keep their size and format.
class lut3d_peer
{
public:
    /// format is FFmpeg's name: gbrpf32le or rgb24. The program ends with a message if libavfilter fails.
    lut3d_peer(const lut_argb<lut_edge>& table, interpolation kind, const std::string& format, std::size_t width,
               std::size_t height);
    ~lut3d_peer();

    /// A row of the frame to render: floats of a plane (0 green, 1 blue, 2 red), or bytes r, g, b in plane 0.
    unsigned char* in_row(int plane, std::size_t y);
    /// Renders the frame that in_row filled; it can be rendered again.
    void render();
    /// A row of the frame rendered last.
    const unsigned char* out_row(int plane, std::size_t y) const;

private:
    struct body;
    std::unique_ptr<body> peer;
};

} // namespace ov1::bench
