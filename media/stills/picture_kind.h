// The still format of a file.
#pragma once

#include "media/stills/picture_facts.h"
#include "shared/result.h"

extern "C"
{
#include <libavcodec/codec_id.h>
}

#include <cstddef>
#include <span>
#include <string_view>

namespace ov1::media
{

/// A format of still pictures that is read.
struct picture_kind
{
    std::string_view name;
    std::string_view mark; ///< the bytes at mark_at that identify the format
    std::size_t mark_at;
    still_format format;
    AVCodecID codec;
    picture_facts (*facts)(std::span<const std::uint8_t> file); ///< null if the decoder reports everything
};

/// The kind of a file by its first bytes; never null. Fails for clips and for what is no picture.
result<const picture_kind*> kind_of(std::span<const std::uint8_t> file, std::string_view path);

} // namespace ov1::media
