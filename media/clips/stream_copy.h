// The streams of a clip beside the one that is graded: what they are called, and how they are carried over.
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

/// A track that counts time for editors; muxers make it anew from the tag.
bool is_timecode(const AVStream& stream);

/// A track that names the clip's chapters.
bool is_chapter_text(const AVFormatContext& format, const AVStream& stream);

/// Rotation, mastering display and the like; disposition; metadata; rates.
void copy_facts(AVStream& to, const AVStream& from);

/// A new stream for the packets of another, as they are. Null without memory.
AVStream* copy_stream(AVFormatContext& output, const AVStream& from);

} // namespace ov1::media
