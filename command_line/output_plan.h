// Which input becomes which output, settled before any work is done.
#pragma once

#include "shared/result.h"

#include <string>
#include <vector>

namespace ov1
{

struct output_rules
{
    bool overwrite = false;
    bool no_clobber = false; ///< existing outputs are skipped
    bool dry_run = false;    ///< nothing may be written, not even for a try
    bool can_skip = true;    ///< the program has an option for no_clobber, which a hint may name
};

struct output_job
{
    std::string input;
    std::string output;
    bool skipped = false; ///< the output exists and is to be left
};

struct output_plan
{
    std::vector<output_job> jobs;
    std::string new_folder; ///< to be made before the first output; empty if there is none
};

/// One input goes to a file, or under its own name into a folder; several go into a folder. A folder is what exists as
/// one or is written with a "/" at the end; with several inputs also a new name without an extension, below a folder
/// that exists.
///
/// Refused, all of it, with one failure for each reason: an output that exists (unless a rule allows it), that is its
/// own input (unless overwriting), that is another's input, that two inputs share, or whose folder takes no files.
/// Pipes and devices may always be written to. Inputs are not opened. The plan is set only where nothing is refused.
[[nodiscard]] std::vector<failure> plan_outputs(const std::vector<std::string>& inputs, const std::string& output,
                                                const output_rules& rules, output_plan& plan);

/// The same rules for inputs whose outputs are known.
[[nodiscard]] std::vector<failure> plan_pairs(const std::vector<output_job>& jobs, const output_rules& rules,
                                              output_plan& plan);

/// The same rules for an output that has no input.
result<output_job> plan_output(const std::string& output, const output_rules& rules);

/// Makes the plan's new folder, if there is one.
result<> make_new_folder(const output_plan& plan);

} // namespace ov1
