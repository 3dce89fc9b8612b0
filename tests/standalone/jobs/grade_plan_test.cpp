#include "standalone/jobs/grade_plan.h"

#include "command_line/exit_code.h"
#include "command_line/failure_line.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace ov1
{
namespace
{

namespace fs = std::filesystem;

const std::string picture = "P6\n1 1\n255\nabc";
const std::string clip = std::string("\0\0\0\x14", 4) + "ftypqt  " + std::string(8, '\0');

class grade_plan_test : public testing::Test
{
protected:
    grade_plan_test()
    {
        for (const char* name : {"a.png", "in/b.png", "in/a.png", "in/.hidden.png", "s.0007.png", "s.0008.png",
                                 "s.0010.png", "100%d.png", "taken.2.png"})
            folder.with_file(name, picture);
        for (const char* name : {"c.mov", "in/c.mov"})
            folder.with_file(name, clip);
        folder.with_file("in/notes.txt", "no picture");
        for (const char* name : {"out", "empty"})
            fs::create_directory(folder / name);
    }

    /// "in>out" for each job, frames as [first-last], or the exit codes and failure lines; the folder is left out.
    std::string plan(const std::string& inputs, const std::string& output, const std::string& frames) const
    {
        grade_request_paths paths{{}, folder / output, {}};
        std::istringstream names(inputs);
        for (std::string name; names >> name;)
            paths.inputs.push_back(folder / name);
        if (!frames.empty())
            paths.frames = frames;
        grade_plan plan;
        std::string text;
        for (const failure& why : plan_grade(paths, {}, plan))
            text += std::to_string(static_cast<int>(exit_code_of(why))) + ' ' + failure_line(why) + ' ';
        for (const output_job& job : plan.outputs.jobs)
            text += job.input + '>' + job.output + ' ';
        if (plan.into_frames)
            text += '[' + std::to_string(plan.first_frame) + '-' + std::to_string(plan.last_frame) + ']';
        const std::string prefix = folder / "";
        for (std::size_t at = text.find(prefix); at != std::string::npos; at = text.find(prefix))
            text.erase(at, prefix.size());
        return text;
    }

    const temp_folder folder;
};

TEST_F(grade_plan_test, files_folders_frames_and_clips_find_their_outputs)
{
    const struct
    {
        const char* name;
        const char* inputs;
        const char* output;
        const char* frames;
        const char* result;
    } rows[] = {
        {"a picture", "a.png", "o.tif", "", "a.png>o.tif "},
        {"a folder's pictures and clips, sorted", "in", "out/", "", //
         "in/a.png>out/a.png in/b.png>out/b.png in/c.mov>out/c.mov "},
        {"a folder beside a file", "s.0007.png in", "out", "",
         "s.0007.png>out/s.0007.png in/a.png>out/a.png in/b.png>out/b.png in/c.mov>out/c.mov "},
        {"a folder into a new folder", "in", "fresh", "",
         "in/a.png>fresh/a.png in/b.png>fresh/b.png in/c.mov>fresh/c.mov "},
        {"frames that exist", "s.%04d.png", "o.%d.tif", "",
         "s.0007.png>o.7.tif s.0008.png>o.8.tif s.0010.png>o.10.tif "},
        {"frames of a range, missing ones too", "s.%04d.png", "out", "8-9",
         "s.0008.png>out/s.0008.png s.0009.png>out/s.0009.png "},
        {"one frame", "s.%04d.png", "o.%04d.png", "10", "s.0010.png>o.0010.png "},
        {"a file whose name looks like a pattern", "100%d.png", "o.png", "", "100%d.png>o.png "},
        {"a clip", "c.mov", "o.mov", "", "c.mov>o.mov "},
        {"a clip into frames", "c.mov", "f.%03d.png", "", "c.mov>f.%03d.png [1-0]"},
        {"some frames of a clip", "c.mov", "f.%03d.png", "3-5", "c.mov>f.%03d.png [3-5]"},
        {"a clip's frames begin with 1", "c.mov", "f.%03d.png", "0-5", "c.mov>f.%03d.png [1-5]"},
        {"a picture to a name with a number", "a.png", "o.%03d.png", "", "a.png>o.%03d.png "},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(plan(row.inputs, row.output, row.frames), row.result);
    }
}

TEST_F(grade_plan_test, what_cannot_be_planned_has_one_reason)
{
    const struct
    {
        const char* inputs;
        const char* output;
        const char* frames;
        const char* said;
    } rows[] = {
        {"empty", "out/", "", "3 \"empty\": the folder contains no pictures or clips "},
        {"in", "o.png", "", "2 \"o.png\": several inputs need an output folder "},
        {"s.%04d.png", "o.png", "", "4 \"o.png\": numbered frames cannot be written to one file "},
        {"t.%04d.png", "o.%04d.png", "", "3 \"t.%04d.png\": no such frames "},
        {"s.%04d.png", "out", "9-8", "2 \"--frames\": 8 is out of range "},
        {"s.%04d.png", "out", "x", "2 \"--frames\": \"x\" is not a number "},
        {"a.png", "o.png", "1-2", "2 \"--frames\": is for numbered frames "},
        {"c.mov", "o.mov", "1-2", "2 \"--frames\": is for numbered frames "},
        {"c.mov", "taken.%d.png", "2-3", "6 \"taken.2.png\": already exists "},
        {"s.%04d.png", "none/o.%04d.png", "7", "6 \"none\": no such folder "},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(std::string(row.inputs) + " to " + row.output + ' ' + row.frames);
        const std::string text = plan(row.inputs, row.output, row.frames);
        EXPECT_EQ(text.substr(0, text.find('(')), row.said) << text;
        EXPECT_EQ(text.find('>'), std::string::npos) << "no plan is left: " << text;
    }
}

} // namespace
} // namespace ov1
