// What the codes of a clip's frames mean.
#pragma once

#include "media/clips/clip_request.h"
#include "media/samples/frame_form.h"
#include "shared/result.h"

extern "C"
{
#include <libavcodec/codec_par.h>
}

namespace ov1::media
{

/// The frame's tags; what they leave open, the stream's. A range or matrix of the request overrides both.
colour_tags clip_tags(const AVFrame& frame, const AVCodecParameters& stream, const clip_request& request);

/// The form of a frame with these tags. Fails as form_of does, with a hint at the request's matrix where that helps.
result<frame_form> clip_form(const AVFrame& frame, const colour_tags& tags);

} // namespace ov1::media
