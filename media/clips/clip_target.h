// Writes a graded clip: its encoder, its container, and all other streams of the source that the container can hold.
#pragma once

#include "media/clips/clip_codec.h"
#include "media/clips/clip_info.h"
#include "media/clips/clip_request.h"
#include "media/clips/clip_source.h"
#include "shared/result.h"

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ov1::media
{

class file_sink;

class clip_target
{
public:
    clip_target();
    ~clip_target();
    clip_target(const clip_target&) = delete;
    clip_target& operator=(const clip_target&) = delete;

    /// Opens an encoder and decides how every stream is written. The extension of the name selects the container; for
    /// /dev/null frames are discarded, for benchmarks. Opens no file. The source outlives the target.
    result<> create(const clip_source& source, const std::string& path, const clip_request& request);

    /// Of each stream of the source, in its order.
    const std::vector<clip_stream>& get_streams() const { return streams; }
    /// What the output loses, one line each.
    const std::vector<std::string>& get_warnings() const { return warnings; }
    const clip_info& get_info() const { return info; }

    /// The samples of the source, with the request's range and matrix, and those of the output.
    const frame_form& get_source_form() const { return source_form; }
    const frame_form& get_form() const { return form; }

    /// Writes the header to an open file, which has to stay open until the end.
    result<> begin(int descriptor);
    /// A frame of the output's form, with a pts in the source's time base. It may be modified.
    result<> write_frame(AVFrame& frame);
    /// A packet of another stream, as the source gave it.
    result<> write_packet(packet_ptr packet);
    result<> finish();

private:
    struct closer
    {
        void operator()(AVFormatContext* context) const { avformat_free_context(context); }
    };
    using output_ptr = std::unique_ptr<AVFormatContext, closer>;

    result<> choose_container(const std::string& path);
    result<> choose_forms(const clip_request& request);
    result<> open_encoder(const clip_request& request);
    result<> plan_streams();
    clip_stream plan_of(const AVStream& stream, const std::string& name) const;
    bool can_hold(const AVStream* other) const;
    AVStream* add_picture(AVFormatContext& output) const;
    void set_head(AVFormatContext& output) const;
    void add_warnings();

    result<> write_encoded();
    result<> write_waiting(const AVPacket* before);
    result<> write(AVPacket& packet);
    result<> written_or_failure(int code) const;

    const clip_source* source = nullptr;
    const AVOutputFormat* container = nullptr; ///< null discards everything
    clip_codec codec;
    codec_ptr encoder;
    frame_form source_form;
    frame_form form;
    colour_tags tags;
    std::vector<clip_stream> streams;
    std::vector<std::string> warnings;
    clip_info info;

    std::unique_ptr<file_sink> sink;
    output_ptr output;
    std::vector<int> places;                        ///< of the source's streams in the output; -1 for none
    std::vector<std::int64_t> last_dts;             ///< of the output's streams, in their time bases
    std::map<std::int64_t, std::int64_t> durations; ///< of frames in the encoder, by their time
    std::int64_t last_frame = AV_NOPTS_VALUE;
    std::deque<packet_ptr> waiting; ///< packets of other streams, until the picture has reached their time
    std::size_t waiting_bytes = 0;
};

} // namespace ov1::media
