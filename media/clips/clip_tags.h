// What a clip's file says besides its streams: metadata and chapters, as far as they stay true.
#pragma once

extern "C"
{
#include <libavformat/avformat.h>
}

namespace ov1::media
{

/// Copies metadata of the file or of a stream, but for what a container says of itself (brands, encoder, handler) and
/// counts that may no longer hold (bit rate, statistics).
void copy_tags(const AVDictionary* from, AVDictionary** to);

/// Copies chapters with their metadata.
void copy_chapters(const AVFormatContext& from, AVFormatContext& to);

/// Whether a name is one that files of the mov family hold in their old lists; others need the newer one.
bool is_classic_mov_tag(const char* name);

} // namespace ov1::media
