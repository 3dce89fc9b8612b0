// Renders an image through the effect.
#pragma once

namespace ov1
{

class image;
class row_renderer;

/// Renders every row of source into destination, on all cores. Row 0 of the renderer is the top row. Returns false,
/// with nothing rendered, unless both are argb_f32 and equal in size and origin.
/// The caller makes sure that nobody uses the destination meanwhile.
[[nodiscard]] bool render_image(const row_renderer& renderer, const image& source, image& destination);

} // namespace ov1
