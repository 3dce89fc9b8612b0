#include "standalone/jobs/grade_plan.h"

#include "command_line/frame_pattern.h"
#include "media/stills/input_kind.h"

#include <algorithm>
#include <filesystem>

namespace ov1
{

namespace
{

namespace fs = std::filesystem;

bool refuse(std::vector<problem>& problems, exit_code code, const std::string& subject, const std::string& reason,
            const std::string& hint = {})
{
    problems.push_back({code, subject, reason, hint});
    return false;
}

bool is_folder(const std::string& path)
{
    std::error_code error;
    return fs::is_directory(path, error);
}

/// A name that exists as it is written is no pattern.
std::optional<frame_pattern> pattern_in(const std::string& path)
{
    std::error_code error;
    return fs::exists(path, error) ? std::nullopt : find_frame_pattern(path);
}

/// Pictures and clips of a folder, by name; files whose names begin with a dot are left.
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

class grade_planner
{
public:
    grade_planner(const grade_request_paths& paths, const output_rules& rules, std::vector<problem>& problems)
        : paths(paths)
        , rules(rules)
        , problems(problems)
    {
    }

    bool plan(grade_plan& result)
    {
        if (!read_range())
            return false;
        const std::string& input = paths.inputs.front();
        const auto from = pattern_in(input);
        if (from && paths.inputs.size() == 1)
            return plan_sequence(*from, result);
        const auto to = find_frame_pattern(paths.output);
        const bool is_clip = media::input_kind_of(input) == media::input_kind::clip;
        if (to && paths.inputs.size() == 1 && is_clip)
            return plan_frames_of_clip(*to, result);
        if (range)
            return refuse(problems, exit_code::usage, "--frames", "goes with numbered frames",
                          "name them with their number as in shot.%04d.exr");
        return plan_files(result);
    }

private:
    bool read_range()
    {
        problem why{exit_code::usage, "--frames", {}, {}};
        if (!paths.frames)
            return true;
        range.emplace();
        return read_frame_range(*paths.frames, *range, why) ||
               refuse(problems, why.code, why.subject, why.reason, "write a first and a last frame, as in 101-200");
    }

    bool plan_sequence(const frame_pattern& from, grade_plan& result)
    {
        std::vector<int> frames = existing_frames(from);
        if (range)
        {
            frames.clear();
            for (int frame = range->first; frame <= range->last; ++frame)
                frames.push_back(frame);
        }
        if (frames.empty())
            return refuse(problems, exit_code::unreadable, paths.inputs.front(), "no such frames");
        const auto to = find_frame_pattern(paths.output);
        if (!to && (is_folder(paths.output) || paths.output.ends_with('/')))
        {
            std::vector<std::string> names;
            for (const int frame : frames)
                names.push_back(from.name_of(frame));
            const std::string folder = paths.output.ends_with('/') ? paths.output : paths.output + '/';
            return plan_outputs(names, folder, rules, result.outputs, problems);
        }
        if (!to)
            return refuse(problems, exit_code::unsupported, paths.output, "numbered frames do not become one file",
                          "number the outputs, as in out.%04d.png, or name a folder");
        std::vector<output_job> jobs;
        for (const int frame : frames)
            jobs.push_back({from.name_of(frame), to->name_of(frame), false});
        return plan_pairs(jobs, rules, result.outputs, problems);
    }

    bool plan_frames_of_clip(const frame_pattern& to, grade_plan& result)
    {
        grade_plan made;
        made.into_frames = true;
        if (range)
        {
            made.first_frame = std::max(1, range->first);
            made.last_frame = range->last;
        }
        output_job first;
        if (!plan_output(to.name_of(made.first_frame), rules, first, problems))
            return false;
        made.outputs.jobs = {{paths.inputs.front(), paths.output, false}};
        result = made;
        return true;
    }

    bool plan_files(grade_plan& result)
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
                return refuse(problems, exit_code::unreadable, input, "there is no picture and no clip in this folder");
            inputs.insert(inputs.end(), files.begin(), files.end());
            if (!output.ends_with('/') && fs::path(output).extension().empty())
                output += '/';
        }
        return plan_outputs(inputs, output, rules, result.outputs, problems);
    }

    const grade_request_paths& paths;
    const output_rules& rules;
    std::vector<problem>& problems;
    std::optional<frame_range> range;
};

} // namespace

bool plan_grade(const grade_request_paths& paths, const output_rules& rules, grade_plan& plan,
                std::vector<problem>& problems)
{
    return grade_planner(paths, rules, problems).plan(plan);
}

} // namespace ov1
