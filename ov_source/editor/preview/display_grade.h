// A picture of the screen through a grade: for small pictures and for trying a look.
#pragma once

#include "editor/preview/display_picture.h"
#include "framework/row_renderer.h"

namespace ov1
{

/// On all cores. The eight bits of the picture limit it: what the user keeps is rendered from the frame itself.
display_picture grade_display(const display_picture& picture, const row_renderer& renderer);

} // namespace ov1
