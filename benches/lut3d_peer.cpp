#include "lut3d_peer.h"

#include <cstdlib>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <unistd.h>

extern "C"
{
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
#include <libavutil/frame.h>
#include <libavutil/pixdesc.h>
}

namespace ov1::bench
{

namespace
{

/// Ends the program: without the peer there is nothing to measure.
void require(bool holds, const char* what)
{
    if (holds)
        return;
    fmt::print(stderr, "veridial-bench: libavfilter: {} failed\n", what);
    std::exit(1);
}

/// With nine digits every float is read back exactly.
void write_exact_cube(const lut_argb<lut_edge>& table, const std::filesystem::path& file)
{
    std::ofstream text(file);
    text << fmt::format("LUT_3D_SIZE {}\n", lut_edge);
    for (std::size_t b = 0; b < lut_edge; ++b)
        for (std::size_t g = 0; g < lut_edge; ++g)
            for (std::size_t r = 0; r < lut_edge; ++r)
            {
                const argb_float& e = table.get_direct(r, g, b);
                text << fmt::format("{:.9g} {:.9g} {:.9g}\n", e.r, e.g, e.b);
            }
}

} // namespace

struct lut3d_peer::body
{
    AVFilterGraph* graph = avfilter_graph_alloc();
    AVFilterContext* source = nullptr;
    AVFilterContext* sink = nullptr;
    AVFrame* in = av_frame_alloc();
    AVFrame* out = av_frame_alloc();

    ~body()
    {
        av_frame_free(&in);
        av_frame_free(&out);
        avfilter_graph_free(&graph);
    }

    AVFilterContext* add(const char* filter, const std::string& options)
    {
        AVFilterContext* context = nullptr;
        const int result = avfilter_graph_create_filter(&context, avfilter_get_by_name(filter), filter,
                                                        options.empty() ? nullptr : options.c_str(), nullptr, graph);
        require(result >= 0, filter);
        return context;
    }
};

lut3d_peer::lut3d_peer(const lut_argb<lut_edge>& table, interpolation kind, const std::string& format,
                       std::size_t width, std::size_t height)
    : peer(std::make_unique<body>())
{
    const auto file = std::filesystem::temp_directory_path() / fmt::format("veridial-bench-{}.cube", getpid());
    write_exact_cube(table, file);
    // One thread, as the contender on our side.
    peer->graph->nb_threads = 1;
    peer->source = peer->add(
        "buffer", fmt::format("video_size={}x{}:pix_fmt={}:time_base=1/25:pixel_aspect=1/1", width, height, format));
    AVFilterContext* filter =
        peer->add("lut3d", fmt::format("file={}:interp={}", file.string(),
                                       kind == interpolation::trilinear ? "trilinear" : "tetrahedral"));
    peer->sink = peer->add("buffersink", "");
    require(avfilter_link(peer->source, 0, filter, 0) >= 0 && avfilter_link(filter, 0, peer->sink, 0) >= 0, "link");
    require(avfilter_graph_config(peer->graph, nullptr) >= 0, "configuration");
    // The filter has read the file when the graph is configured.
    std::filesystem::remove(file);

    peer->in->format = av_get_pix_fmt(format.c_str());
    peer->in->width = static_cast<int>(width);
    peer->in->height = static_cast<int>(height);
    require(av_frame_get_buffer(peer->in, 64) >= 0, "frame");
}

lut3d_peer::~lut3d_peer() = default;

unsigned char* lut3d_peer::in_row(int plane, std::size_t y)
{
    return peer->in->data[plane] + static_cast<std::ptrdiff_t>(y) * peer->in->linesize[plane];
}

void lut3d_peer::render()
{
    // Releases the frame rendered before.
    av_frame_unref(peer->out);
    require(av_buffersrc_add_frame_flags(peer->source, peer->in, AV_BUFFERSRC_FLAG_KEEP_REF) >= 0, "sending a frame");
    require(av_buffersink_get_frame(peer->sink, peer->out) >= 0, "rendering a frame");
    require(peer->out->format == peer->in->format, "keeping the format");
}

const unsigned char* lut3d_peer::out_row(int plane, std::size_t y) const
{
    return peer->out->data[plane] + static_cast<std::ptrdiff_t>(y) * peer->out->linesize[plane];
}

} // namespace ov1::bench
