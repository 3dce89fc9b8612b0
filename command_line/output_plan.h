// Which input is written to which output, decided before any work is done.
#pragma once

#include "shared/result.h"

#include <string>
#include <vector>

namespace ov1
{

/// What may happen to outputs that exist, as the options of a command say. Overwrite and no_clobber exclude each other;
/// the caller has checked that.
struct output_rules
{
    bool overwrite = false;
    bool no_clobber = false; ///< existing outputs are kept and their jobs skipped
    bool dry_run = false;    ///< nothing may be written, not even to test a folder
    bool can_skip = true;    ///< hints may suggest the option -n
};

/// One input and the file that is made of it, as paths that the user can recognize.
struct output_job
{
    std::string input;
    std::string output;
    bool skipped = false; ///< the output exists and is kept
};

/// The jobs are in the order of the inputs; skipped ones stay in the list, so that they can be reported.
struct output_plan
{
    std::vector<output_job> jobs;
    std::string new_folder; ///< must be made before the first output; empty if there is none
};

/// One input is written to a file, or under its own name into a folder; several are written into a folder. The output
/// is a folder if it exists as one or ends in "/"; for several inputs, also if it is a new name without an extension in
/// an existing folder.
///
/// There is one failure for each output that exists (unless a rule allows it), is its own input (unless overwriting) or
/// the input of another job, belongs to two inputs, or lies in a folder that cannot be written to. Pipes and devices
/// are always allowed. Inputs are not opened. The plan is set only where there is no failure.
[[nodiscard]] std::vector<failure> plan_outputs(const std::vector<std::string>& inputs, const std::string& output,
                                                const output_rules& rules, output_plan& plan);

/// The same rules for jobs whose outputs are given.
[[nodiscard]] std::vector<failure> plan_pairs(const std::vector<output_job>& jobs, const output_rules& rules,
                                              output_plan& plan);

/// The same rules for an output without an input.
/// The job has no input. Only the first failure is returned.
result<output_job> plan_output(const std::string& output, const output_rules& rules);

/// Makes the plan's new folder, if there is one.
/// A folder that another process has made in the meantime is no failure.
result<> make_new_folder(const output_plan& plan);

} // namespace ov1
