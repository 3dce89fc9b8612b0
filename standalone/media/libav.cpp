#include "media/libav.h"

extern "C"
{
#include <libavutil/log.h>
}

#include <array>
#include <cstdarg>
#include <cstdio>
#include <mutex>

namespace ov1::media
{

namespace
{

struct collector
{
    bool active = false;
    std::string first;
};
thread_local collector messages;

/// libav's callback: every message of the process arrives here, on the thread that reports it.
void collect(void*, int level, const char* format, va_list values)
{
    if (level > AV_LOG_ERROR || !messages.active || !messages.first.empty())
        return;
    std::array<char, 512> text{};
    std::vsnprintf(text.data(), text.size(), format, values);
    messages.first = text.data();
    const std::size_t last = messages.first.find_last_not_of(" .\r\n");
    messages.first.resize(last == std::string::npos ? 0 : last + 1);
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

} // namespace ov1::media
