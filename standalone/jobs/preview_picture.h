// Reduced copies of pictures in the form that the effect takes: display-referred, straight alpha, within 0..1.
#pragma once

#include "media/stills/reduced_picture.h"
#include "shared/image.h"

#include <cstddef>
#include <memory>

namespace ov1
{

/// Encodes linear pictures with the sRGB curve, divides premultiplied alpha out, and limits values to 0..1; a NaN
/// becomes 0.
/// The picture keeps its aspect ratio and is never enlarged; both limits are in pixels.
media::reduced_picture make_gradable_picture(const media::still_reader& source, std::size_t max_width,
                                             std::size_t max_height);

/// The same, at most 1600 pixels on the long side, as the editor's preview takes it.
std::shared_ptr<image> make_preview_image(const media::still_reader& source);

/// An empty image alike in size, type and origin.
/// Its pixels are not copied.
std::shared_ptr<image> make_image_like(const image& other);

/// What the editor shows where there is no picture: ramps of hues over ramps of grey.
/// 1600 x 900 opaque pixels: five bands of hues, ever less saturated and darker, and one of greys.
std::shared_ptr<image> make_test_chart();

} // namespace ov1
