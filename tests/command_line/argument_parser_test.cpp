#include "command_line/argument_parser.h"
#include "command_line/failure_line.h"
#include "command_line/grade_request.h"
#include "command_line/run_options.h"
#include "support/captured_console.h"

#include <gtest/gtest.h>

namespace ov1
{
namespace
{

struct parsed
{
    explicit parsed(const std::vector<std::string>& arguments)
    {
        parser.positionals("INPUT", inputs, "pictures");
        parser.text("-o,--output", output, "OUT", "where to");
        add_grade_options(parser, grade);
        add_run_options(parser, run);
        outcome = parser.parse(arguments);
    }

    std::string line() const { return outcome ? "" : failure_line(outcome.error()); }

    argument_parser parser{"veridial grade", "Grades pictures.", "Example"};
    result<argument_parser::outcome> outcome = argument_parser::outcome::help;
    std::vector<std::string> inputs;
    grade_request grade;
    run_options run;
    std::optional<std::string> output;
};

TEST(argument_parser, sorts_options_from_inputs)
{
    using texts = std::vector<std::string>;
    const parsed p({"a.png", "-s", "Sky Strength=60", "b.png", "-fv", "--sky", "-5,6", "-o", "x", "--set=c=1", "-ofile",
                    "--wheel", "shadows=1,2", "--", "-c.png", "--film"});
    ASSERT_EQ(p.line(), "");
    ASSERT_EQ(*p.outcome, argument_parser::outcome::run);
    EXPECT_EQ(p.inputs, (texts{"a.png", "b.png", "-c.png", "--film"}));
    EXPECT_EQ(p.grade.settings, (texts{"Sky Strength=60", "c=1"}));
    EXPECT_EQ(p.grade.wheels, texts{"shadows=1,2"});
    EXPECT_EQ(p.grade.sky, "-5,6") << "a value may begin with a dash";
    EXPECT_EQ(p.output, "file") << "the last one holds";
    EXPECT_FALSE(p.grade.film.has_value());
    EXPECT_TRUE(p.run.overwrite && p.run.verbose && !p.run.quiet);
}

TEST(argument_parser, tells_each_mistake_on_one_plain_line)
{
    const std::pair<std::vector<std::string>, const char*> rows[] = {
        {{"--ouput", "x"}, "\"--ouput\": no such option (did you mean \"--output\"?)"},
        {{"--overwrit=1"}, "\"--overwrit\": no such option (did you mean \"--overwrite\"?)"},
        {{"a.png", "-z"}, "\"-z\": no such option (\"veridial grade --help\" lists the options)"},
        {{"a.png", "-o"}, "\"--output\": needs a value"},
        {{"--set"}, "\"--set\": needs a value"},
        {{"--dry-run=maybe"}, "\"--dry-run\": takes no value"},
    };
    for (const auto& [arguments, line] : rows)
    {
        SCOPED_TRACE(line);
        EXPECT_EQ(parsed(arguments).line(), line);
    }
    const parsed help({"a.png", "--help"});
    EXPECT_TRUE(help.outcome && *help.outcome == argument_parser::outcome::help) << help.line();
}

TEST(argument_parser, a_command_without_inputs_expects_none)
{
    argument_parser parser("veridial params", "", "");
    const auto outcome = parser.parse(std::vector<std::string>{"Sky"});
    ASSERT_FALSE(outcome);
    EXPECT_EQ(failure_line(outcome.error()),
              "\"Sky\": unexpected argument (\"veridial params --help\" lists the options)");
}

TEST(run_options, are_settled_from_their_texts)
{
    const std::pair<std::vector<std::string>, const char*> rows[] = {
        {{"-j", "4", "--progress", "JSON"}, ""},
        {{"-j", "-1"}, "\"--threads\": -1 is out of range (0 to 1024)\n"},
        {{"-j", "many", "--progress", "jsn"},
         "\"--threads\": \"many\" is not a number\n\"--progress\": unknown value \"jsn\" (did you mean \"json\"?)\n"},
        {{"-fn"}, "\"--overwrite\": cannot be combined with --no-clobber\n"},
        {{"-qv"}, "\"--quiet\": cannot be combined with --verbose\n"},
    };
    for (const auto& [arguments, expected] : rows)
    {
        SCOPED_TRACE(arguments.front());
        parsed p(arguments);
        captured_console captured;
        option_reader reader;
        settle_run_options(p.run, captured.console, reader);
        std::string lines;
        for (const failure& why : reader.take_failures())
            lines += failure_line(why) + '\n';
        EXPECT_EQ(lines, expected);
        EXPECT_EQ(lines.empty(), p.run.threads == 4 && p.run.progress == progress_style::json);
    }
}

} // namespace
} // namespace ov1
