// Which encoder writes a clip, how, and in which pixel format.
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
    std::optional<int> quantizer = {}; ///< of codecs with a fixed one
};

/// The codec that is asked for by name, else the source's, with the quality that is asked for, else one at which losses
/// are hard to see. The source's form tells which of a codec's profiles is needed. Fails, saying what to ask for, where
/// there is no encoder or no such setting.
result<clip_codec> choose_codec(const AVCodecParameters& source, const frame_form& form, const clip_request& request);

/// The encoder's pixel format that is asked for, else the source's, else the one that loses least of it. Fails, listing
/// the formats, where it has none of the kind.
result<AVPixelFormat> choose_pixels(const clip_codec& codec, const frame_form& form, const clip_request& request);

/// What is lost of the source's samples: "alpha", "bits below 8", "chroma of every second pixel"; empty if nothing.
std::string lost_samples(const frame_form& from, const frame_form& to);

} // namespace ov1::media
