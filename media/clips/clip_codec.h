// The encoder of a graded clip, its settings and its pixel format.
#pragma once

#include "media/clips/clip_request.h"
#include "media/samples/frame_form.h"
#include "shared/result.h"

extern "C"
{
#include <libavcodec/avcodec.h>
}

#include <string>
#include <utility>
#include <vector>

namespace ov1::media
{

/// An encoder and its settings.
struct clip_codec
{
    const AVCodec* encoder = nullptr;
    std::string name; ///< "h264", "prores_hq", ...
    std::vector<std::pair<std::string, std::string>> options = {};
    std::optional<int> quantizer = {}; ///< for codecs with a fixed quantizer
};

/// The requested codec, else the source's; the requested quality, else one whose losses are hard to see. The profile
/// follows from the source's form. Fails where there is no encoder or no such setting, with a hint at what to request.
result<clip_codec> choose_codec(const AVCodecParameters& source, const frame_form& form, const clip_request& request);

/// The requested pixel format, else the source's, else the one of the encoder that loses least. Fails where the encoder
/// has none, with a list of its formats.
result<AVPixelFormat> choose_pixels(const clip_codec& codec, const frame_form& form, const clip_request& request);

/// What the output loses of the source's samples: "alpha", "more than 8 bits", "chroma of every pixel"; empty if
/// nothing.
std::string lost_samples(const frame_form& from, const frame_form& to);

} // namespace ov1::media
