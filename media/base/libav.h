// Owners for libav's objects, and its messages, which must not reach the terminal.
#pragma once

extern "C"
{
#include <libavcodec/avcodec.h>
#include <libavutil/dict.h>
#include <libavutil/mem.h>
}

#include <cstdint>
#include <memory>
#include <string>

namespace ov1::media
{

/// Frees what libav allocates, with all that belongs to it.
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

// Null where libav had no memory.
using frame_ptr = std::unique_ptr<AVFrame, libav_deleter>;
using packet_ptr = std::unique_ptr<AVPacket, libav_deleter>;
using codec_ptr = std::unique_ptr<AVCodecContext, libav_deleter>;

/// Owns a dictionary of options.
struct dictionary
{
    AVDictionary* entries = nullptr;

    dictionary() = default;
    ~dictionary() { av_dict_free(&entries); }
    dictionary(const dictionary&) = delete;
    dictionary& operator=(const dictionary&) = delete;

    /// Replaces a former value of the name. Codecs remove the options that they use.
    void set(const std::string& name, const std::string& value)
    {
        av_dict_set(&entries, name.c_str(), value.c_str(), 0);
    }

    /// The first option that no codec has used; empty if all were used.
    std::string first_left() const
    {
        const AVDictionaryEntry* left = av_dict_get(entries, "", nullptr, AV_DICT_IGNORE_SUFFIX);
        return left != nullptr ? left->key : "";
    }
};

/// Collects what libav reports on this thread during its lifetime. From the first one on libav prints nothing. At most
/// one for a thread at a time.
class libav_messages
{
public:
    libav_messages();
    ~libav_messages();
    libav_messages(const libav_messages&) = delete;
    libav_messages& operator=(const libav_messages&) = delete;

    /// Whether an error was reported on this thread since the object was made.
    bool any() const;

    /// The first error message, one line without a full stop; else the text of the error code.
    std::string reason(int error_code) const;
};

/// How many errors decoders have reported on all threads since the program began, and the latest of them; empty before
/// the first. May be called from any thread. Decoders with threads report on their own, out of reach of libav_messages.
std::uint64_t decoder_report_count();
std::string last_decoder_report();

} // namespace ov1::media
