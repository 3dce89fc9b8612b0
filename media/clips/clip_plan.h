// What a graded clip will be: its container, its encoder, the samples of its frames, and what becomes of each stream.
#pragma once

#include "media/clips/clip_codec.h"
#include "media/clips/clip_info.h"
#include "media/clips/clip_request.h"
#include "media/clips/clip_source.h"
#include "shared/result.h"

#include <memory>
#include <string>
#include <vector>

namespace ov1::media
{

struct output_deleter
{
    void operator()(AVFormatContext* context) const { avformat_free_context(context); }
};

/// Owns a muxer and its streams, but not the file or memory that it writes to (AVFormatContext::pb).
using output_ptr = std::unique_ptr<AVFormatContext, output_deleter>;

/// Decides everything that can be decided before a byte is written. One thread at a time; the source outlives the plan.
class clip_plan
{
public:
    /// Chooses a container by the extension of the path (/dev/null discards everything, for benchmarks), opens an
    /// encoder, and tries which streams the container can hold. Writes no file. Fails where the request, the
    /// container and the source do not go together; the plan is then of no further use.
    result<> make(const clip_source& source, const std::string& path, const clip_request& request);

    /// Null if the output is discarded; then there is no encoder either, and no stream is listed.
    const AVOutputFormat* get_container() const { return container; }
    /// Whether the container is QuickTime or one of the formats derived from it (MP4, 3GP, ...).
    bool is_mov() const;
    /// The open encoder; the plan owns it, the caller sends it frames. Only where there is a container.
    AVCodecContext& get_encoder() const { return *encoder; }
    /// "h264", "prores_hq", ...
    const std::string& get_codec_name() const { return codec.name; }

    /// One entry for each stream of the source, in its order.
    const std::vector<clip_stream>& get_streams() const { return streams; }
    /// What the output loses, one line each.
    const std::vector<std::string>& get_warnings() const { return warnings; }
    /// The source's size, rate and duration, with the container, codec and pixel format of the output.
    const clip_info& get_info() const { return info; }

    /// The samples of the source, with the request's range and matrix, and those of the output.
    const frame_form& get_source_form() const { return source_form; }
    const frame_form& get_form() const { return form; }

    /// Adds the graded picture's stream to an output. Null without memory; the output owns the stream.
    AVStream* add_picture(AVFormatContext& output) const;

private:
    result<> choose_container(const std::string& path);
    result<> choose_forms(const clip_request& request);
    result<> open_encoder(const clip_request& request);
    result<> plan_streams();
    clip_stream plan_of(const AVStream& stream, const std::string& name) const;
    bool can_hold(const AVStream* other) const;
    void add_warnings();

    const clip_source* source = nullptr;
    const AVOutputFormat* container = nullptr;
    clip_codec codec;
    codec_ptr encoder;
    frame_form source_form;
    frame_form form;
    colour_tags tags; ///< of the output
    std::vector<clip_stream> streams;
    std::vector<std::string> warnings;
    clip_info info;
};

} // namespace ov1::media
