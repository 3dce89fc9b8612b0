// The streams of a clip that are not graded: their names, and copies of them.
#pragma once

extern "C"
{
#include <libavformat/avformat.h>
}

#include <string>

namespace ov1::media
{

/// "audio", "subtitle", "cover picture" and so on.
std::string kind_name(const AVStream& stream);

/// "audio 2 (aac, deu)".
std::string stream_name(const AVStream& stream, int number);

/// A timecode track; muxers write it from the metadata.
bool is_timecode(const AVStream& stream);

/// A text track with the names of the chapters.
bool is_chapter_text(const AVFormatContext& format, const AVStream& stream);

/// Copies side data (rotation, mastering display, ...), disposition, metadata and rates.
void copy_facts(AVStream& to, const AVStream& from);

/// A new stream for the unchanged packets of another. Null without memory.
AVStream* copy_stream(AVFormatContext& output, const AVStream& from);

} // namespace ov1::media
