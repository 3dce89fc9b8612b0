// Metadata and chapters of a clip, as far as they are still true for the graded one.
#pragma once

extern "C"
{
#include <libavformat/avformat.h>
}

namespace ov1::media
{

/// Copies metadata of the file or of a stream, except what a container says of itself (brands, encoder, handler) and
/// statistics that may have changed (bit rate, byte counts).
void copy_tags(const AVDictionary* from, AVDictionary** to);

/// Copies chapters with their metadata.
void copy_chapters(const AVFormatContext& from, AVFormatContext& to);

/// Whether files of the mov family can store a name in their old metadata list; other names need the newer list.
bool is_classic_mov_tag(const char* name);

} // namespace ov1::media
