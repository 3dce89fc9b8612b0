#include "media/base/libav.h"

extern "C"
{
#include <libavutil/log.h>
}

#include <array>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <mutex>

namespace ov1::media
{

namespace
{

/// What libav_messages collects on this thread.
struct collector
{
    bool active = false;
    std::string first;
};
thread_local collector messages;

/// What decoders report on their own threads.
struct decoder_reports
{
    std::mutex mutex;
    std::string last;
    std::atomic<std::uint64_t> count = 0;
};

/// Made at its first use, on whatever thread that is.
decoder_reports& reports()
{
    static decoder_reports all;
    return all;
}

/// libav's messages end in a line feed, some in a full stop as well.
std::string without_end(std::string text)
{
    const std::size_t last = text.find_last_not_of(" .\r\n");
    text.resize(last == std::string::npos ? 0 : last + 1);
    return text;
}

/// The reporter is null or a struct of libav's that begins with a pointer to its class.
bool is_decoder(void* reporter)
{
    if (reporter == nullptr || *static_cast<const AVClass**>(reporter) != avcodec_get_class())
        return false;
    const AVCodec* codec = static_cast<const AVCodecContext*>(reporter)->codec;
    return codec != nullptr && av_codec_is_decoder(codec) != 0;
}

/// libav's callback: every message of the process arrives here, on the thread that reports it.
void collect(void* reporter, int level, const char* format, va_list values)
{
    const bool is_collected = messages.active && messages.first.empty();
    if (level > AV_LOG_ERROR || (!is_collected && !is_decoder(reporter)))
        return;
    std::array<char, 512> buffer{};
    std::vsnprintf(buffer.data(), buffer.size(), format, values);
    const std::string text = without_end(buffer.data());
    if (is_collected)
        messages.first = text;
    if (is_decoder(reporter))
    {
        const std::scoped_lock lock(reports().mutex);
        reports().last = text;
        ++reports().count;
    }
}

} // namespace

libav_messages::libav_messages()
{
    static std::once_flag once;
    std::call_once(once, [] { av_log_set_callback(collect); });
    messages = {.active = true, .first = {}};
}

libav_messages::~libav_messages() { messages = {}; }

bool libav_messages::any() const { return !messages.first.empty(); }

std::string libav_messages::reason(int error_code) const
{
    if (!messages.first.empty())
        return messages.first;
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(error_code, text.data(), text.size());
    return text.data();
}

std::uint64_t decoder_report_count() { return reports().count; }

std::string last_decoder_report()
{
    const std::scoped_lock lock(reports().mutex);
    return reports().last;
}

} // namespace ov1::media
