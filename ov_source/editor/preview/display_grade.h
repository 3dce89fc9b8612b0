// A picture of the screen after a grade: for thumbnails, and for the trial of a preset.
#pragma once

#include "editor/preview/display_picture.h"
#include "framework/row_renderer.h"

namespace ov1
{

/// Runs on all cores. Input and output have 8 bits a channel: good enough to look at, while results that the user keeps
/// are rendered from the frame itself.
display_picture grade_display(const display_picture& picture, const row_renderer& renderer);

} // namespace ov1
