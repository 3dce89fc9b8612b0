// What each format we write can hold, and how.
#pragma once

#include "media/stills/still_info.h"
#include "shared/result.h"

extern "C"
{
#include <libavcodec/codec_id.h>
#include <libavutil/pixfmt.h>
}

#include <optional>
#include <string>
#include <string_view>

namespace ov1::media
{

/// One way in which a format holds samples.
struct output_layout
{
    still_format format;
    media::depth depth;
    bool has_alpha;
    AVPixelFormat pixels;
};

/// What is asked of an output; what is left open follows the source.
struct layout_request
{
    std::optional<media::depth> depth = {};
    std::string_view pixel_format = {}; ///< libav's name, empty for the format's usual one
};

/// The format of a file name by its extension, in any case; fails with what can be written.
result<still_format> format_of_path(std::string_view path);

/// "PNG", ... of a format that is written.
std::string_view name_of(still_format format);
AVCodecID codec_of(still_format format);
/// Whether a colour profile is written.
bool holds_icc(still_format format);

/// The layout that is asked for, or the one that loses least of the source's depth and alpha. Fails, naming what the
/// format holds, if it cannot hold what is asked for; a format without any alpha drops it.
result<output_layout> choose_layout(still_format format, const still_info& source, const layout_request& request);

} // namespace ov1::media
