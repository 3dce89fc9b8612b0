// Reports the outcome of a clip as text and as JSON.
#pragma once

#include "standalone/jobs/clip_job.h"

namespace ov1
{

class json_text;

/// Prints warnings, the failure, and what was or would be written; a dry run lists every stream.
void report_clip(const output_job& job, const clip_result& result, bool is_dry_run, bool as_json, console& out);

/// Adds one object. The result of a skipped job is ignored.
void add_clip_json(json_text& json, const output_job& job, const clip_result& result);

} // namespace ov1
