// The still formats that are written, and the sample layouts that each can hold.
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

/// One sample layout of a format.
struct output_layout
{
    still_format format;
    media::depth depth;
    bool has_alpha;
    AVPixelFormat pixels;
};

/// The request for an output; whatever it leaves open follows the source.
struct layout_request
{
    std::optional<media::depth> depth = {};
    std::string_view pixel_format = {}; ///< libav's name; if empty, the usual one of the format
};

/// The format that the extension of a path names, in any case. Fails with a list of the extensions.
result<still_format> format_of_path(std::string_view path);

/// "PNG", ... of a format that is written.
std::string_view name_of(still_format format);
AVCodecID codec_of(still_format format);
/// Whether a colour profile is written.
bool holds_icc(still_format format);

/// The requested layout, else the one that loses least of the source's depth and alpha; a format without alpha drops
/// it. Fails if the format cannot hold what is requested, with a list of what it can hold.
result<output_layout> choose_layout(still_format format, const still_info& source, const layout_request& request);

} // namespace ov1::media
