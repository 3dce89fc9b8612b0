#include "bridge_bench.h"

#include "frames.h"
#include "framework/icomponent_v1.h"
#include "framework/render_rows.h"
#include "host/fxplug/fcp_wrapper_veridialfcpx_3_7_0_0.h"
#include "host/simulator/simulated_host.h"
#include "host/simulator/tile_maker.h"
#include "interleaved.h"

#include <cstring>

namespace ov1::bench
{

namespace
{

// The bridge may take a quarter more time than the bare loop.
constexpr double bridge_floor = 0.8;
// Unused bytes after each row, as in the surfaces of hosts.
constexpr std::size_t padding = 256;

rgba_picture picture_of(const frame& f)
{
    rgba_picture picture(f.width, f.height);
    for (std::size_t i = 0; i < f.count(); ++i)
    {
        const float rgba[] = {f.pixels[i].r, f.pixels[i].g, f.pixels[i].b, f.pixels[i].a};
        std::memcpy(&picture.rgba[4 * i], rgba, sizeof rgba);
    }
    return picture;
}

/// The first sample of a row; the surface owns it.
template <typename T>
T* row_of(IOSurface* surface, std::size_t y)
{
    return reinterpret_cast<T*>(static_cast<std::byte*>([surface pixels]) + y * [surface shape].bytes_per_row);
}

/// The rows of a surface through the renderer, with nothing around them.
void render_bare(const row_renderer& renderer, IOSurface* from, IOSurface* to)
{
    const surface_shape shape = [from shape];
    const std::size_t row_length = shape.bytes_per_row / sizeof(half_bits);
    render_rows(renderer,
                picture_rows<half_bits>{.in = row_of<const half_bits>(from, 0),
                                        .out = row_of<half_bits>(to, 0),
                                        .in_step = row_length,
                                        .out_step = row_length,
                                        .width = shape.width,
                                        .height = shape.height},
                0);
}

/// Bytes of pixels that differ; the rows' ends are not looked at.
double differing_bytes(IOSurface* a, IOSurface* b)
{
    std::size_t count = 0;
    const surface_shape shape = [a shape];
    for (std::size_t y = 0; y < shape.height; ++y)
        for (std::size_t i = 0; i < shape.width * shape.bytes_per_element; ++i)
            count += row_of<std::byte>(a, y)[i] != row_of<std::byte>(b, y)[i];
    return static_cast<double>(count);
}

} // namespace

void run_bridge_bench(report& to, std::size_t width, std::size_t height, int rounds)
{
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    simulated_host host;
    if (const auto created = host.create_instance(); !created)
        return to.answer("bridge: " + created.error().reason, 1, 0);
    if (!host.edit(3, 40.0) || !host.edit(4, 60.0))
        return to.answer("bridge: an edit is refused", 1, 0);
    auto* const plugin = static_cast<fcp_wrapper_veridialfcpx_3_7_0_0*>(host.get_plugin());
    const rgba_picture picture = picture_of(make_frame(content::natural, width, height));
    const picture_part all{0, 0, width, height};
    IOSurface* const in = [make_surface(picture, all, surface_format::half, padding) autorelease];
    IOSurface* const bridged = [make_empty_surface(all, surface_format::half, padding) autorelease];
    IOSurface* const bare = [make_empty_surface(all, surface_format::half, padding) autorelease];
    FxImageTile* const source = [make_tile(in, picture, all) autorelease];
    FxImageTile* const destination = [make_tile(bridged, picture, all) autorelease];
    NSArray* const sources = [NSArray arrayWithObject:source];

    const auto through_bridge = [&]
    {
        NSError* error = nil;
        [plugin renderDestinationImage:destination
                          sourceImages:sources
                           pluginState:nil
                                atTime:kCMTimeZero
                                 error:&error];
    };
    through_bridge(); // the table is built
    const auto renderer = [plugin getComponent]->get_row_renderer();
    render_bare(*renderer, in, bare);
    to.answer("bridge, halfs", differing_bytes(bridged, bare), 0);

    const auto seconds = median_seconds(
        {{"bare loop", [&] { render_bare(*renderer, in, bare); }, false}, {"bridge", through_bridge, false}}, rounds);
    to.ratio("halfs through the bridge, to the bare loop", seconds[0] / seconds[1], bridge_floor);
    [pool drain];
}

} // namespace ov1::bench
