// A graded clip in the making: its encoder, its container, and every stream of the source that the container holds.
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

/// Bytes on their way into an open file, and what went wrong with them.
class file_sink;

class clip_target
{
public:
    clip_target();
    ~clip_target();
    clip_target(const clip_target&) = delete;
    clip_target& operator=(const clip_target&) = delete;

    /// Opens an encoder and decides what becomes of every stream. The container is that of the name's extension;
    /// /dev/null takes frames and keeps nothing, for measuring. Touches no file. The source outlives the target.
    result<> create(const clip_source& source, const std::string& path, const clip_request& request);

    /// Of each stream of the source, in its order.
    const std::vector<clip_stream>& get_streams() const { return streams; }
    /// What the output holds less of than the source, one line each.
    const std::vector<std::string>& get_warnings() const { return warnings; }
    const clip_info& get_info() const { return info; }

    /// The source's samples as the request has them understood, and the output's.
    const frame_form& get_source_form() const { return source_form; }
    const frame_form& get_form() const { return form; }

    /// Writes the head into an open file, which has to stay open until the end.
    result<> begin(int descriptor);
    /// A frame of the output's form; its pts is in the source's time base. The frame may be changed.
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
    bool is_held(const AVStream* other) const;
    AVStream* add_picture(AVFormatContext& output) const;
    void set_head(AVFormatContext& output) const;
    void add_warnings();

    result<> write_encoded();
    result<> write_waiting(const AVPacket* before);
    result<> write(AVPacket& packet);
    result<> written_or_failure(int code) const;

    const clip_source* source = nullptr;
    const AVOutputFormat* container = nullptr; ///< null keeps nothing
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
    std::deque<packet_ptr> waiting; ///< packets of other streams, until the picture has come as far
    std::size_t waiting_bytes = 0;
};

} // namespace ov1::media
