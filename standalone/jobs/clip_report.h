// What became of a clip, in words and as JSON.
#pragma once

#include "standalone/jobs/clip_job.h"

namespace ov1
{

class json_text;

/// Warnings, errors, and what was done or would be done; a dry run names every stream.
void tell_clip(const output_job& job, const clip_result& result, bool is_dry_run, bool as_json, console& out);

/// One object. A skipped job has no result.
void add_clip_json(json_text& json, const output_job& job, const clip_result& result);

} // namespace ov1
