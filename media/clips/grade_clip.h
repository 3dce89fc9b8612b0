// Decodes, grades and encodes a clip at the same time.
#pragma once

#include "media/clips/clip_info.h"
#include "media/samples/frame_grader.h"
#include "media/samples/piece_runner.h"
#include "shared/result.h"

#include <cstdint>
#include <functional>

namespace ov1::media
{

class clip_source;
class clip_target;

/// Functions that are called while a clip is graded. Only the grade may be empty: then samples that the output stores
/// in the same way are unchanged.
struct clip_hooks
{
    plane_grade grade;
    piece_runner run;
    std::function<void(std::uint64_t frames)> on_frame;       ///< written so far; on the caller's thread
    std::function<void(const clip_damage& damage)> on_damage; ///< on the caller's thread, in the clip's order
};

/// Grades a clip from its source into its target, an open file. Decoding, grading and encoding each have a thread; they
/// wait for each other so that only a few frames are in memory. Damaged frames are reported and the rest is graded.
/// Fails where the output cannot be written, and where the picture changes its size or pixel format within the clip;
/// the file is then incomplete.
result<> grade_clip(clip_source& source, clip_target& target, int descriptor, const clip_hooks& hooks);

} // namespace ov1::media
