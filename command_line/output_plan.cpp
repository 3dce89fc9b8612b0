#include "command_line/output_plan.h"

#include "command_line/failure_line.h"
#include "platform/atomic_file.h"
#include "platform/folder_listing.h"
#include "platform/plain_reason.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace ov1
{

namespace
{

namespace fs = std::filesystem;

/// Whether the path, or the target of a link, is a file that could be replaced: no pipe and no device.
bool is_regular(const std::string& path)
{
    std::error_code error;
    return fs::is_regular_file(path, error);
}

/// Whether the name exists, dangling links included.
bool is_taken(const std::string& path)
{
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

/// Writing through such a link would create its target, so it counts as an output that exists.
bool is_dangling_link(const std::string& path)
{
    std::error_code error;
    return is_taken(path) && !fs::exists(path, error);
}

/// Identifies a file on the disk under all its names.
// Two paths with the same identity are one file: hard links included.
using file_identity = std::pair<dev_t, ino_t>;

std::optional<file_identity> identity_of(const std::string& path)
{
    struct stat facts;
    if (path.empty() || stat(path.c_str(), &facts) != 0)
        return {};
    return file_identity{facts.st_dev, facts.st_ino};
}

/// The folder in which the file lies; "." for a bare name.
std::string parent_of(const std::string& path)
{
    const std::string parent = fs::path(path).parent_path().string();
    return parent.empty() ? "." : parent;
}

std::string without_end_slash(std::string path)
{
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

/// One spelling for all paths of an output.
std::string canonical(const std::string& path)
{
    std::error_code error;
    const fs::path result = fs::weakly_canonical(path, error);
    // A path that cannot be resolved is compared as it is written.
    return error ? path : result.string();
}

/// A dry run asks for the permission only: the other test creates a file for a moment.
result<> takes_files(const std::string& folder, bool dry_run)
{
    if (!dry_run)
        return folder_takes_files(folder);
    if (faccessat(AT_FDCWD, (folder + "/.").c_str(), W_OK | X_OK, AT_EACCESS) == 0)
        return {};
    return failure{failure_kind::cannot_write, {}, plain_reason(errno)};
}

/// Collects the reasons against a set of outputs.
class planner
{
public:
    explicit planner(const output_rules& rules)
        : rules(rules)
    {
    }

    void refuse(const std::string& subject, const std::string& reason, const std::string& hint = {},
                failure_kind kind = failure_kind::cannot_write)
    {
        failures.push_back({kind, subject, reason, hint});
    }

    /// The output folder; empty where the output is a file.
    std::string find_folder(std::size_t input_count, const std::string& output, output_plan& plan)
    {
        const std::string folder = without_end_slash(output);
        if (is_folder(output))
            return folder;
        const bool is_named_folder = output.ends_with('/') && !is_taken(folder);
        if (input_count == 1 && !output.ends_with('/'))
            return {};
        // Several inputs and a new name without an extension: a folder is meant. "out.png" would more likely be a
        // mistake.
        const bool is_new_name = !is_taken(output) && fs::path(output).extension().empty();
        if (!is_named_folder && !is_new_name)
        {
            refuse(output, is_taken(folder) ? "is not a folder" : "several inputs need an output folder",
                   "to make a new folder, end its name with \"/\"", failure_kind::usage);
            return {};
        }
        plan.new_folder = folder;
        return folder;
    }

    void check_job(output_job& job)
    {
        const auto input = identity_of(job.input);
        // Compared by device and inode: links and other spellings name the same file too.
        const bool is_own_input = input && input == identity_of(job.output);
        if (is_own_input && !rules.overwrite)
            refuse(job.output, "is also the input", "use -f to replace it");
        else if (is_folder(job.output))
            refuse(job.output, "is a folder");
        else if ((is_regular(job.output) || is_dangling_link(job.output)) && !rules.overwrite)
        {
            if (rules.no_clobber)
                job.skipped = true;
            else
                refuse(job.output, "already exists",
                       rules.can_skip ? "use -f to replace it, -n to keep it" : "use -f to replace it");
        }
    }

    void check_against_other_inputs(const std::vector<output_job>& jobs)
    {
        // Looked up instead of compared in pairs: a sequence may have many thousand frames.
        std::map<file_identity, const output_job*> inputs;
        for (const output_job& job : jobs)
            if (const auto identity = identity_of(job.input))
                inputs.emplace(*identity, &job);
        for (const output_job& job : jobs)
        {
            const auto identity = identity_of(job.output);
            const auto found = identity ? inputs.find(*identity) : inputs.end();
            // Such an output would destroy an input before it is read, whatever the options say.
            if (found != inputs.end() && found->second != &job)
                refuse(job.output, "is also an input", "choose another folder");
        }
    }

    /// Inputs of the same name from two folders would overwrite each other in the output folder.
    void check_shared_names(const std::vector<output_job>& jobs)
    {
        std::map<std::string, const output_job*> seen;
        for (const output_job& job : jobs)
        {
            const auto [place, is_new] = seen.emplace(canonical(job.output), &job);
            if (!is_new)
                refuse(job.output,
                       "is the output of both " + in_quotes(place->second->input) + " and " + in_quotes(job.input),
                       "use two output folders", failure_kind::usage);
        }
    }

    void check_folder(const std::string& folder)
    {
        if (const auto taken = takes_files(folder, rules.dry_run); !taken)
            failures.push_back(about(folder, taken.error()));
    }

    bool is_sound() const { return failures.empty(); }
    std::vector<failure> take_failures() { return std::move(failures); }

private:
    const output_rules& rules;
    std::vector<failure> failures;
};

/// Whether a new file is made in the output's folder: pipes and devices are opened in place.
bool needs_folder(const output_job& job) { return !job.skipped && (is_regular(job.output) || !is_taken(job.output)); }

} // namespace

std::vector<failure> plan_outputs(const std::vector<std::string>& inputs, const std::string& output,
                                  const output_rules& rules, output_plan& plan)
{
    output_plan made;
    planner planner(rules);
    const std::string folder = planner.find_folder(inputs.size(), output, made);
    if (!planner.is_sound())
        return planner.take_failures();
    for (const std::string& input : inputs)
    {
        const std::string leaf = fs::path(input).filename().string();
        made.jobs.push_back({input, folder.empty() ? output : (fs::path(folder) / leaf).string(), false});
        planner.check_job(made.jobs.back());
    }
    planner.check_against_other_inputs(made.jobs);
    planner.check_shared_names(made.jobs);
    if (!made.new_folder.empty())
        planner.check_folder(parent_of(made.new_folder));
    else if (std::any_of(made.jobs.begin(), made.jobs.end(), needs_folder))
        planner.check_folder(folder.empty() ? parent_of(output) : folder);
    if (planner.is_sound())
        plan = std::move(made);
    return planner.take_failures();
}

std::vector<failure> plan_pairs(const std::vector<output_job>& jobs, const output_rules& rules, output_plan& plan)
{
    output_plan made{jobs, {}};
    planner planner(rules);
    // Each folder is tried once, however many frames go into it.
    std::set<std::string> folders;
    for (output_job& job : made.jobs)
    {
        planner.check_job(job);
        if (needs_folder(job))
            folders.insert(parent_of(job.output));
    }
    planner.check_against_other_inputs(made.jobs);
    planner.check_shared_names(made.jobs);
    for (const std::string& folder : folders)
        planner.check_folder(folder);
    if (planner.is_sound())
        plan = std::move(made);
    return planner.take_failures();
}

result<output_job> plan_output(const std::string& output, const output_rules& rules)
{
    output_job job{{}, output, false};
    planner planner(rules);
    planner.check_job(job);
    if (planner.is_sound() && needs_folder(job))
        planner.check_folder(parent_of(output));
    if (!planner.is_sound())
        return planner.take_failures().front();
    return job;
}

result<> make_new_folder(const output_plan& plan)
{
    if (plan.new_folder.empty() || mkdir(plan.new_folder.c_str(), 0777) == 0 || is_folder(plan.new_folder))
        return {};
    return failure{failure_kind::cannot_write, plan.new_folder, plain_reason(errno), {}};
}

} // namespace ov1
