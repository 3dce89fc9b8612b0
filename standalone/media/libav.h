// Owners for libav's objects, and its messages kept off the terminal.
#pragma once

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavutil/mem.h>
}

#include <memory>
#include <string>

namespace ov1::media
{

struct libav_deleter
{
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(AVCodecContext* context) const
    {
        av_freep(&context->chroma_intra_matrix); // forgotten by libav 5.1
        avcodec_free_context(&context);
    }
};

using frame_ptr = std::unique_ptr<AVFrame, libav_deleter>;
using packet_ptr = std::unique_ptr<AVPacket, libav_deleter>;
using codec_ptr = std::unique_ptr<AVCodecContext, libav_deleter>;

/// Collects what libav reports on this thread while it lives; from the first one on, libav prints nothing any more.
/// One at a time on a thread.
class libav_messages
{
public:
    libav_messages();
    ~libav_messages();
    libav_messages(const libav_messages&) = delete;
    libav_messages& operator=(const libav_messages&) = delete;

    /// Whether an error was reported.
    bool any() const;

    /// The first error message, one line without a full stop; else the text of the error code.
    std::string reason(int error_code) const;
};

} // namespace ov1::media
