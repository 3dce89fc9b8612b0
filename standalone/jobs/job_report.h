// Reports the outcomes of pictures and clips, as text and as JSON.
#pragma once

#include "standalone/jobs/clip_job.h"
#include "standalone/jobs/picture_job.h"

namespace ov1
{

class json_text;
struct run_options;

/// Prints warnings, the failure, and what was written or, in a dry run, would be; of a clip, a dry run also lists every
/// stream. The outcome of a skipped job is ignored.
/// Failures and warnings go to stderr, and so does what was written, with --verbose. What a dry run would write is a
/// result on stdout, unless JSON is wanted.
void report_picture(const output_job& job, const picture_result& result, const run_options& run, console& out);
void report_clip(const output_job& job, const clip_result& result, const run_options& run, console& out);

/// Adds one object for the job.
/// The array that holds the objects is opened and closed by the caller.
void add_picture_json(json_text& json, const output_job& job, const picture_result& result, bool is_dry_run);
void add_clip_json(json_text& json, const output_job& job, const clip_result& result);

} // namespace ov1
