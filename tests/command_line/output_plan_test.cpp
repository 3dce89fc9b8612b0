#include "command_line/output_plan.h"

#include "command_line/exit_code.h"
#include "command_line/failure_line.h"
#include "support/plain_user.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>

namespace ov1
{
namespace
{

namespace fs = std::filesystem;

class output_plan_test : public testing::Test
{
protected:
    output_plan_test()
    {
        for (const char* name : {"a.png", "b.png", "sub/a.png", "old.png", "out/b.png"})
            folder.with_file(name, name);
        fs::create_symlink("a.png", folder / "link.png");
        fs::create_symlink("missing", folder / "dangling.png");
        folder.with_file("linked/b.png", "");
        fs::create_symlink("b.png", folder / "linked/a.png");
        fs::create_hard_link(folder / "a.png", folder / "hard.png");
        mkfifo((folder / "pipe").c_str(), 0600);
        before = folder.count();
    }

    /// "in>out" for each job, a star where it is skipped, or the exit codes and failure lines; the temporary folder
    /// appears as @.
    std::string plan(const std::string& inputs, const std::string& output, const output_rules& rules = {})
    {
        std::istringstream names(inputs);
        std::vector<std::string> paths;
        for (std::string name; names >> name;)
            paths.push_back(folder / name);
        output_plan plan;
        std::string text;
        for (const failure& why : plan_outputs(paths, folder / output, rules, plan))
            text += std::to_string(static_cast<int>(exit_code_of(why))) + ' ' + failure_line(why) + '\n';
        for (const output_job& job : plan.jobs)
            text += fs::path(job.input).filename().string() + '>' + job.output + (job.skipped ? "* " : " ");
        if (!plan.new_folder.empty())
            text += '+' + plan.new_folder;
        for (std::size_t at = text.find(folder.path); at != std::string::npos; at = text.find(folder.path))
            text.replace(at, folder.path.size(), 1, '@');
        return text;
    }

    temp_folder folder;
    std::ptrdiff_t before = 0;
};

constexpr output_rules overwrite{true, false, false}, no_clobber{false, true, false}, dry_run{false, false, true};

const std::string exists = ": already exists (use -f to replace it, -n to keep it)\n";
const std::string itself = ": is also the input (use -f to replace it)\n";
const std::string two_folders = " (use two output folders)\n";
const std::string new_folder = " (to make a new folder, end its name with \"/\")\n";

TEST_F(output_plan_test, names_the_outputs)
{
    const std::tuple<const char*, const char*, const char*, std::string> rows[] = {
        {"a file", "a.png", "new.tif", "a.png>@/new.tif "},
        {"a folder", "a.png", "out", "a.png>@/out/a.png "},
        {"a folder with its slash", "a.png", "out/", "a.png>@/out/a.png "},
        {"a new folder", "a.png", "fresh/", "a.png>@/fresh/a.png +@/fresh"},
        {"a file without an extension", "a.png", "fresh", "a.png>@/fresh "},
        {"several into a folder", "a.png old.png", "out", "a.png>@/out/a.png old.png>@/out/old.png "},
        {"several into a new folder", "a.png b.png", "fresh", "a.png>@/fresh/a.png b.png>@/fresh/b.png +@/fresh"},
        {"a pipe", "a.png", "pipe", "a.png>@/pipe "},
    };
    for (const auto& [name, inputs, output, result] : rows)
    {
        SCOPED_TRACE(name);
        EXPECT_EQ(plan(inputs, output), result);
        constexpr fs::file_time_type long_ago{};
        for (const char* place : {".", "out"})
            fs::last_write_time(folder / place, long_ago);
        EXPECT_EQ(plan(inputs, output, dry_run), result);
        for (const char* place : {".", "out"})
            EXPECT_EQ(fs::last_write_time(folder / place), long_ago) << "a dry run has written to " << place;
    }
    EXPECT_EQ(folder.count(), before) << "planning leaves nothing behind";
}

TEST_F(output_plan_test, refuses_what_would_lose_something)
{
    const std::tuple<const char*, const char*, const char*, output_rules, std::string> rows[] = {
        {"an old file", "a.png", "old.png", {}, "6 \"@/old.png\"" + exists},
        {"a link to nowhere", "a.png", "dangling.png", {}, "6 \"@/dangling.png\"" + exists},
        {"an old file, overwriting", "a.png", "old.png", overwrite, "a.png>@/old.png "},
        {"an old file, leaving it", "a.png", "old.png", no_clobber, "a.png>@/old.png* "},
        {"one of several", "a.png b.png", "out", {}, "6 \"@/out/b.png\"" + exists},
        {"the input itself", "a.png", "a.png", {}, "6 \"@/a.png\"" + itself},
        {"the input, leaving it", "a.png", "a.png", no_clobber, "6 \"@/a.png\"" + itself},
        {"the input, overwriting", "a.png", "a.png", overwrite, "a.png>@/a.png "},
        {"the input through a link", "a.png", "link.png", {}, "6 \"@/link.png\"" + itself},
        {"the input through a hard link", "a.png", "hard.png", {}, "6 \"@/hard.png\"" + itself},
        {"the input's own folder", "a.png", ".", {}, "6 \"@/./a.png\"" + itself},
        {"another's input", "sub/a.png b.png a.png", "sub", overwrite,
         "6 \"@/sub/a.png\": is also an input (choose another folder)\n"
         "2 \"@/sub/a.png\": is the output of both \"@/sub/a.png\" and \"@/a.png\"" +
             two_folders},
        {"one name for two", "a.png sub/a.png", "out", overwrite,
         "2 \"@/out/a.png\": is the output of both \"@/a.png\" and \"@/sub/a.png\"" + two_folders},
        {"one file behind two names", "a.png b.png", "linked", overwrite,
         "2 \"@/linked/b.png\": is the output of both \"@/a.png\" and \"@/b.png\"" + two_folders},
        {"several into a file", "a.png b.png", "old.png", overwrite, "2 \"@/old.png\": is not a folder" + new_folder},
        {"several into a new file",
         "a.png b.png",
         "new.png",
         {},
         "2 \"@/new.png\": several inputs need an output folder" + new_folder},
        {"a missing folder", "a.png", "no/where.png", {}, "6 \"@/no\": no such folder\n"},
        {"a folder in a missing one", "a.png", "no/where/", {}, "6 \"@/no\": no such folder\n"},
        {"below a file", "a.png", "old.png/x.png", dry_run, "6 \"@/old.png\": a part of the path is not a folder\n"},
    };
    for (const auto& [name, inputs, output, rules, result] : rows)
    {
        SCOPED_TRACE(name);
        EXPECT_EQ(plan(inputs, output, rules), result);
    }
}

TEST_F(output_plan_test, finds_a_closed_folder_before_the_work)
{
    fs::create_directory(folder / "closed");
    chmod(folder.path.c_str(), 0755);
    chmod((folder / "closed").c_str(), 0555);
    const plain_user plain;
    EXPECT_EQ(plan("a.png", "closed"), "6 \"@/closed\": permission denied\n");
    EXPECT_EQ(plan("a.png", "closed", dry_run), "6 \"@/closed\": permission denied\n");
}

TEST_F(output_plan_test, an_output_without_an_input_keeps_the_same_rules)
{
    EXPECT_TRUE(plan_output(folder / "x.cube", {}));
    EXPECT_TRUE(plan_output(folder / "pipe", {}));
    const auto left = plan_output(folder / "old.png", no_clobber);
    EXPECT_TRUE(left && left->skipped);
    EXPECT_FALSE(plan_output(folder / "old.png", {}));
    EXPECT_FALSE(plan_output(folder / "out", overwrite));
    EXPECT_FALSE(plan_output(folder / "no/x.cube", {}));
}

} // namespace
} // namespace ov1
