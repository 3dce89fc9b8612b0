// The road of a clip: decoded, graded and encoded at the same time.
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

/// What is called while a clip is on its way. None may be empty but the grade, which then leaves samples untouched that
/// the output stores alike.
struct clip_hooks
{
    plane_grade grade;
    piece_runner run;
    std::function<void(std::uint64_t frames)> on_frame;       ///< so many are written; on the caller's thread
    std::function<void(const clip_damage& damage)> on_damage; ///< on the caller's thread, in the clip's order
};

/// Takes a clip from its source to its target, into an open file. Decoding, grading and encoding have a thread each,
/// and wait for one another when they are more than a few frames apart, so that memory does not grow with the clip.
/// Damaged frames are told and the rest goes on. Fails where the output cannot be written, or where the picture changes
/// its size or form on its way; what is in the file is then of no use.
result<> grade_clip(clip_source& source, clip_target& target, int descriptor, const clip_hooks& hooks);

} // namespace ov1::media
