#include "media/base/file_sink.h"

#include "platform/plain_reason.h"

extern "C"
{
#include <libavformat/version.h>
#include <libavutil/error.h>
#include <libavutil/mem.h>
}

#include <cerrno>
#include <unistd.h>

namespace ov1::media
{

namespace
{

constexpr int buffer_bytes = 1 << 18; // few calls of the system, even for packets of large frames

} // namespace

file_sink::file_sink(int descriptor)
    : descriptor(descriptor)
{
    auto* buffer = static_cast<unsigned char*>(av_malloc(buffer_bytes));
    if (buffer == nullptr)
        return;
#if LIBAVFORMAT_VERSION_MAJOR >= 61 // from then on the callback takes const bytes
    const auto written = write;
#else
    const auto written = [](void* self, std::uint8_t* bytes, int count) { return write(self, bytes, count); };
#endif
    context = avio_alloc_context(buffer, buffer_bytes, 1, this, nullptr, written, seek);
    if (context == nullptr)
        av_free(buffer);
    else if (lseek(descriptor, 0, SEEK_CUR) < 0)
        context->seekable = 0;
}

file_sink::~file_sink()
{
    if (context == nullptr)
        return;
    // libav may have replaced the buffer: the context's own is freed, not ours.
    av_freep(&context->buffer);
    avio_context_free(&context);
}

std::string file_sink::reason() const { return error_number != 0 ? plain_reason(error_number) : std::string(); }

int file_sink::write(void* self, const std::uint8_t* bytes, int count)
{
    auto& sink = *static_cast<file_sink*>(self);
    for (int done = 0; done < count;)
    {
        const ssize_t written = ::write(sink.descriptor, bytes + done, static_cast<std::size_t>(count - done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
        {
            sink.error_number = written < 0 ? errno : ENOSPC; // writing nothing is no progress: the disk is full
            return AVERROR(sink.error_number);
        }
        done += static_cast<int>(written);
    }
    return count;
}

std::int64_t file_sink::seek(void* self, std::int64_t offset, int whence)
{
    if (whence == AVSEEK_SIZE)
        return AVERROR(ENOSYS); // the size of the file; muxers do without
    const auto& sink = *static_cast<file_sink*>(self);
    const off_t place = lseek(sink.descriptor, offset, whence & ~AVSEEK_FORCE);
    return place < 0 ? AVERROR(errno) : place;
}

} // namespace ov1::media
