// An open clip: the packets of its streams in file order, those of the picture decoded.
#pragma once

#include "media/base/libav.h"
#include "media/clips/clip_info.h"
#include "shared/result.h"

extern "C"
{
#include <libavformat/avformat.h>
}

#include <deque>
#include <optional>
#include <string>

namespace ov1::media
{

/// Exactly one of the three is set.
struct clip_item
{
    frame_ptr frame;   ///< of the picture; its pts is in the stream's time base
    packet_ptr packet; ///< of any other stream
    std::optional<clip_damage> damage;
};

/// Reads forward only, except for seek. One thread at a time; what get_first_frame and get_info return does not change
/// after open and may be read from any thread.
class clip_source
{
public:
    /// Opens a file and decodes up to the first frame of its picture; of several video streams it takes the one that
    /// players choose. The number of decoding threads is 0 for all processors.
    result<> open(const std::string& path, unsigned int threads);

    // After a successful open; all of it belongs to the source.
    const AVFormatContext& get_format() const { return *format; }
    /// The stream whose frames are decoded.
    const AVStream& get_picture() const { return *format->streams[picture]; }
    /// A reference to the first frame: next returns it as well.
    const AVFrame& get_first_frame() const { return *first; }
    const clip_info& get_info() const { return info; }

    /// The next item in file order; false at the end. Damage is an item of its own, and decoding continues.
    [[nodiscard]] bool next(clip_item& item);

    /// Seeks to the last key frame at or before a time in the stream's time base.
    /// False where the container cannot; the position is then undefined. Frames before the time may follow.
    [[nodiscard]] bool seek(std::int64_t time);

private:
    struct closer
    {
        void operator()(AVFormatContext* context) const { avformat_close_input(&context); }
    };

    result<> open_decoder(unsigned int threads, const libav_messages& messages);
    /// Reads one packet and takes what the decoder has for it; any number of items becomes ready.
    void read_more();
    void receive(const libav_messages& messages);
    void receive_frame(frame_ptr frame);
    void watch_reports();
    void add_failed_frame(std::string reason);
    void add_damage(std::int64_t time, std::string reason);
    void add_missing_frames();
    double seconds_of(std::int64_t time) const;

    /// An error message of the decoder that may belong to a frame.
    struct decoder_report
    {
        std::int64_t time;
        std::string text;
        int frames_left; ///< until it is reported as damage
    };

    std::unique_ptr<AVFormatContext, closer> format;
    codec_ptr decoder;
    int picture = -1;
    frame_ptr first;
    clip_info info;
    std::deque<clip_item> ready;      ///< read, but not yet returned
    std::deque<std::int64_t> waiting; ///< times of the packets that have given no frame yet, in the order sent
    std::uint64_t packets = 0;        ///< of the picture
    std::uint64_t reports = 0;        ///< messages of decoders seen so far
    std::optional<decoder_report> report;
    std::int64_t last_time = 0; ///< of the latest frame, in the stream's time base
    bool is_at_end = false;
    bool has_sought = false; ///< then packets are not all counted
};

} // namespace ov1::media
