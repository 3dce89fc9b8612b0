#include "standalone/jobs/grade_plan.h"

#include "command_line/frame_pattern.h"
#include "media/stills/input_kind.h"
#include "platform/folder_listing.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace ov1
{

namespace
{

namespace fs = std::filesystem;

/// The pattern of a name, unless a file has exactly this name.
std::optional<frame_pattern> pattern_in(const std::string& path)
{
    std::error_code error;
    // A file may be named "shot.%04d.png": then it is one picture.
    return fs::exists(path, error) ? std::nullopt : find_frame_pattern(path);
}

/// The pictures and clips in a folder, sorted by name; files whose names begin with a dot are ignored.
std::vector<std::string> files_of(const std::string& folder)
{
    std::vector<std::string> files;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error))
    {
        const std::string path = entry.path().string();
        if (!entry.path().filename().string().starts_with('.') && entry.is_regular_file(error) &&
            media::is_media_file(path))
            files.push_back(path);
    }
    std::sort(files.begin(), files.end());
    return files;
}

using failures = std::vector<failure>;
// Empty where --frames is not given.
using chosen_range = std::optional<frame_range>;

/// Writes numbered frames under their own names into a folder, or to other numbered frames.
failures plan_sequence(const frame_pattern& from, const grade_request_paths& paths, const chosen_range& range,
                       const output_rules& rules, output_plan& plan)
{
    // A range names its frames whether they exist or not: a missing one is then a failure, never a silent gap.
    std::vector<int> frames = existing_frames(from);
    if (range)
    {
        frames.clear();
        for (int frame = range->first; frame <= range->last; ++frame)
            frames.push_back(frame);
    }
    if (frames.empty())
        return {{failure_kind::unreadable, paths.inputs.front(), "no such frames"}};
    const auto to = find_frame_pattern(paths.output);
    const bool is_into_folder = !to && (is_folder(paths.output) || paths.output.ends_with('/'));
    if (!to && !is_into_folder)
        return {{failure_kind::unsupported, paths.output, "numbered frames cannot be written to one file",
                 "use a numbered name such as out.%04d.png, or a folder"}};
    if (is_into_folder)
    {
        std::vector<std::string> names;
        for (const int frame : frames)
            names.push_back(from.name_of(frame));
        return plan_outputs(names, paths.output.ends_with('/') ? paths.output : paths.output + '/', rules, plan);
    }
    std::vector<output_job> jobs;
    for (const int frame : frames)
        jobs.push_back({from.name_of(frame), to->name_of(frame), false});
    return plan_pairs(jobs, rules, plan);
}

/// Numbers begin at 1. The last frame is not known before the clip is decoded, so only the first name is checked here.
failures plan_frames_of_clip(const frame_pattern& to, const grade_request_paths& paths, const chosen_range& range,
                             const output_rules& rules, grade_plan& plan)
{
    grade_plan made;
    made.into_frames = true;
    if (range)
    {
        made.first_frame = std::max(1, range->first);
        made.last_frame = range->last;
    }
    if (const auto first = plan_output(to.name_of(made.first_frame), rules); !first)
        return {first.error()};
    made.outputs.jobs = {{paths.inputs.front(), paths.output, false}};
    plan = std::move(made);
    return {};
}

/// Replaces each folder by its files, without its sub-folders.
failures plan_files(const grade_request_paths& paths, const output_rules& rules, output_plan& plan)
{
    std::vector<std::string> inputs;
    std::string output = paths.output;
    for (const std::string& input : paths.inputs)
    {
        if (!is_folder(input))
        {
            inputs.push_back(input);
            continue;
        }
        const std::vector<std::string> files = files_of(input);
        if (files.empty())
            return {{failure_kind::unreadable, input, "the folder contains no pictures or clips"}};
        inputs.insert(inputs.end(), files.begin(), files.end());
        // A folder as input makes the output a folder, even if it holds only one picture; unless the output has an
        // extension.
        if (!output.ends_with('/') && fs::path(output).extension().empty())
            output += '/';
    }
    return plan_outputs(inputs, output, rules, plan);
}

} // namespace

std::vector<failure> plan_grade(const grade_request_paths& paths, const output_rules& rules, grade_plan& plan)
{
    chosen_range range;
    if (paths.frames)
    {
        const auto read = read_frame_range(*paths.frames);
        if (!read)
            return {{read.error().kind, "--frames", read.error().reason,
                     "write the first and the last frame, as in 101-200"}};
        range = *read;
    }
    const std::string& input = paths.inputs.front();
    const bool is_one_input = paths.inputs.size() == 1;
    if (const auto from = pattern_in(input); from && is_one_input)
        return plan_sequence(*from, paths, range, rules, plan.outputs);
    const auto to = find_frame_pattern(paths.output);
    if (to && is_one_input && media::input_kind_of(input) == media::input_kind::clip)
        return plan_frames_of_clip(*to, paths, range, rules, plan);
    if (range)
        return {{failure_kind::usage, "--frames", "is for numbered frames", "write their number as in shot.%04d.exr"}};
    return plan_files(paths, rules, plan.outputs);
}

} // namespace ov1
