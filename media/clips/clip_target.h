// Writes a graded clip: its encoder, its container, and all other streams of the source that the container can hold.
#pragma once

#include "media/clips/clip_plan.h"
#include "shared/result.h"

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ov1::media
{

class file_sink;

/// Encodes frames and multiplexes them with packets of the other streams. One thread at a time, in this order: create,
/// begin, any number of writes, finish. After a failure nothing more can be written, and the file is incomplete.
class clip_target
{
public:
    clip_target();
    ~clip_target();
    clip_target(const clip_target&) = delete;
    clip_target& operator=(const clip_target&) = delete;

    /// Opens an encoder and decides how every stream is written (clip_plan.h). Opens no file. The source outlives the
    /// target.
    result<> create(const clip_source& source, const std::string& path, const clip_request& request);

    /// What clip_plan has decided.
    const std::vector<clip_stream>& get_streams() const { return plan.get_streams(); }
    const std::vector<std::string>& get_warnings() const { return plan.get_warnings(); }
    const clip_info& get_info() const { return plan.get_info(); }
    const frame_form& get_source_form() const { return plan.get_source_form(); }
    const frame_form& get_form() const { return plan.get_form(); }

    /// Writes the header to an open file, which has to stay open until finish returns; the caller closes it.
    result<> begin(int descriptor);
    /// A frame of the output's form, with a pts in the source's time base. Its fields may be modified, its samples not.
    /// A time that does not rise is moved to the first free one.
    result<> write_frame(AVFrame& frame);
    /// A packet of another stream, as the source gave it. It is kept until the picture has reached its time, so a
    /// failure to write it may be returned by a later call. Packets of streams that are left out are dropped.
    result<> write_packet(packet_ptr packet);
    /// Writes what the encoder and the queue still hold, and the end of the file.
    result<> finish();

private:
    void set_head(AVFormatContext& output) const;

    result<> write_encoded();
    result<> write_waiting(const AVPacket* before);
    result<> write(AVPacket& packet);
    result<> written_or_failure(int code) const;

    const clip_source* source = nullptr;
    clip_plan plan;

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
