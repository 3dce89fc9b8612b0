// Takes the bytes of a muxer to an open file.
#pragma once

extern "C"
{
#include <libavformat/avio.h>
}

#include <memory>
#include <string>

namespace ov1::media
{

/// Writes through a buffer; the muxer flushes it. One thread at a time.
class file_sink
{
public:
    /// Does not own the descriptor. A file without seeking (a pipe) is written from start to end.
    explicit file_sink(int descriptor);
    ~file_sink();
    file_sink(const file_sink&) = delete;
    file_sink& operator=(const file_sink&) = delete;

    /// For AVFormatContext::pb; the sink owns it and outlives the muxer. Null without memory.
    AVIOContext* get() { return context; }
    /// Why bytes could not be written; empty if all of them were.
    std::string reason() const;

private:
    // libav's callbacks, with the sink as their first argument. A failure is a negative code of libav.
    static int write(void* self, const std::uint8_t* bytes, int count);
    static std::int64_t seek(void* self, std::int64_t offset, int whence);

    int descriptor;
    int error_number = 0; ///< of the latest failed write, as errno has it
    AVIOContext* context = nullptr;
};

} // namespace ov1::media
