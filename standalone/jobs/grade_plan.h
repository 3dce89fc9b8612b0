// Plans a run of "grade": files, folders and numbered frames, and the output of each.
#pragma once

#include "command_line/output_plan.h"

#include <optional>
#include <string>
#include <vector>

namespace ov1
{

/// The paths as the user wrote them.
struct grade_request_paths
{
    std::vector<std::string> inputs; ///< files, folders, or one name with a "%04d"
    std::string output;              ///< a file, a folder, or a name with a "%04d"
    /// "101-200": only these frames, of numbered pictures or of a clip that is written as frames.
    std::optional<std::string> frames;
};

/// What is read and written, in the order of the work.
struct grade_plan
{
    output_plan outputs;
    /// The one input is a clip, and its output a name for numbered frames, first to last.
    bool into_frames = false;
    int first_frame = 1;
    int last_frame = 0; ///< 0 for all there are
};

/// Numbered frames are written to numbered frames, or under their own names into a folder; a clip can be written to
/// frames numbered from 1; a folder stands for all its pictures and clips, in the order of their names. All else is
/// planned by plan_outputs. The plan is set only where there is no failure.
[[nodiscard]] std::vector<failure> plan_grade(const grade_request_paths& paths, const output_rules& rules,
                                              grade_plan& plan);

} // namespace ov1
