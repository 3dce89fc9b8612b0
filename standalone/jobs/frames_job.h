// Grades a clip and writes its frames as numbered pictures.
#pragma once

#include "command_line/console.h"
#include "media/clips/clip_request.h"
#include "standalone/jobs/clip_job.h"
#include "standalone/jobs/grade_plan.h"
#include "standalone/jobs/picture_job.h"

#include <string>

namespace ov1
{

/// Grades the frames of the plan's only clip, and writes each as a picture. Damage is printed as it occurs. A dry run
/// determines the format of the first frame and writes nothing.
/// With no_clobber, frames whose file exists are decoded and left out. The first failure ends the run; frames that were
/// written before it stay.
clip_result grade_clip_into_frames(const grade_plan& plan, const picture_settings& settings, const clip_settings& clip,
                                   bool no_clobber, console& out);

} // namespace ov1
