// A clip of a run that becomes numbered pictures.
#pragma once

#include "command_line/console.h"
#include "media/clips/clip_request.h"
#include "standalone/jobs/clip_job.h"
#include "standalone/jobs/grade_plan.h"
#include "standalone/jobs/picture_job.h"

#include <string>

namespace ov1
{

/// Grades the plan's frames of its one clip, each as a picture of its own. Damage and failures are told as they come. A
/// dry run settles the format of the first frame and writes nothing.
clip_result grade_clip_into_frames(const grade_plan& plan, const picture_settings& settings, const clip_settings& clip,
                                   bool no_clobber, console& out);

} // namespace ov1
