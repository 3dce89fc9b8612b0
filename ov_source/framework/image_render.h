// A whole picture through the effect.
#pragma once

namespace ov1
{

class image;
class row_renderer;

/// Renders every row of source into destination, on all cores. Both are argb_f32, of one size and one origin; row 0 of
/// the renderer is the top row. Returns false, with nothing rendered, when they do not fit together.
[[nodiscard]] bool render_image(const row_renderer& renderer, const image& source, image& destination);

} // namespace ov1
