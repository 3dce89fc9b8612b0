#include "command_line/program.h"
#include "command_line/progress.h"
#include "support/captured_console.h"

#include <array>
#include <gtest/gtest.h>

namespace ov1
{
namespace
{

exit_code greet(std::span<const std::string> arguments, console& out)
{
    out.result("hello");
    for (const std::string& a : arguments)
        out.result(' ' + a);
    out.warning({.subject = "it", .reason = "rains"});
    out.note("said");
    return arguments.empty() ? exit_code::done : exit_code::unreadable;
}

constexpr verb verbs[] = {{"greet", "say hello", greet}, {"grade", "grade pictures", greet}};

TEST(program, runs_a_verb_or_explains)
{
    const std::tuple<std::vector<std::string>, exit_code, const char*, const char*> rows[] = {
        {{"greet"}, exit_code::done, "hello", "veridial: warning: \"it\": rains\n"},
        {{"greet", "a"}, exit_code::unreadable, "hello a", "veridial: warning: \"it\": rains\n"},
        {{"gerte"}, exit_code::usage, "", "veridial: \"gerte\": no such command (\"veridial --help\" lists them)\n"},
        {{"great"}, exit_code::usage, "", "veridial: \"great\": no such command (did you mean \"greet\"?)\n"},
        {{"-f", "greet"},
         exit_code::usage,
         "",
         "veridial: \"-f\": a command must come first (\"veridial --help\" lists them)\n"},
        {{}, exit_code::usage, "", "veridial: no command given (\"veridial --help\" lists them)\n"},
        {{"--version"}, exit_code::done, "veridial 3.7.0\n", ""},
    };
    for (const auto& [arguments, code, out, err] : rows)
    {
        SCOPED_TRACE(err);
        captured_console captured;
        EXPECT_EQ(run_program(arguments, verbs, captured.console), code);
        EXPECT_EQ(captured.out.text(), out);
        EXPECT_EQ(captured.err.text(), err);
    }
}

TEST(program, fails_when_its_results_are_lost)
{
    memory_stream err;
    std::FILE* full = std::fopen("/dev/full", "w");
    ASSERT_NE(full, nullptr);
    console out(full, err.get());
    out.set_quiet(true);
    EXPECT_EQ(run_program(std::vector<std::string>{"greet"}, verbs, out), exit_code::cannot_write);
    EXPECT_EQ(err.text(), "veridial: \"standard output\": the disk is full\n");
    std::fclose(full);
}

TEST(exit_code, follows_from_the_kind_of_the_first_failure)
{
    using enum failure_kind;
    const std::pair<failure_kind, int> rows[] = {
        {usage, 2}, {unreadable, 3}, {unsupported, 4}, {invalid_grade, 5}, {cannot_write, 6},
    };
    for (const auto& [kind, code] : rows)
    {
        SCOPED_TRACE(code);
        EXPECT_EQ(static_cast<int>(exit_code_of(failure{kind})), code);
        EXPECT_EQ(static_cast<int>(exit_code_of(std::vector<failure>{{kind}, {usage}})), code);
    }
    EXPECT_EQ(exit_code_of(std::vector<failure>{}), exit_code::done);
}

TEST(exit_code, is_common_to_inputs_that_end_alike)
{
    using enum exit_code;
    EXPECT_EQ(common_exit_code({}), done);
    EXPECT_EQ(common_exit_code(std::array{done, done}), done);
    EXPECT_EQ(common_exit_code(std::array{unreadable}), unreadable);
    EXPECT_EQ(common_exit_code(std::array{unreadable, unreadable}), unreadable);
    EXPECT_EQ(common_exit_code(std::array{done, unreadable}), some_failed);
    EXPECT_EQ(common_exit_code(std::array{unsupported, unreadable}), some_failed);
}

TEST(progress, counts_in_the_form_asked_for)
{
    const std::tuple<const char*, progress_style, bool, bool, const char*> rows[] = {
        {"plain", progress_style::plain, false, true, "1 of 2: \"a\"\n2 of 2: \"b\" failed\n"},
        {"json", progress_style::json, true, false,
         "{\"done\":1,\"total\":2,\"input\":\"a\",\"ok\":true}\n{\"done\":2,\"total\":2,\"input\":\"b\",\"ok\":false}"
         "\n"},
        {"none", progress_style::none, true, false, ""},
        {"no terminal", progress_style::automatic, false, false, ""},
        {"quiet", progress_style::automatic, true, true, ""},
    };
    for (const auto& [name, style, is_terminal, is_quiet, err] : rows)
    {
        SCOPED_TRACE(name);
        captured_console captured;
        captured.console.set_quiet(is_quiet);
        progress report(captured.console, style, is_terminal, 2);
        report.step("a", true);
        report.step("b", false);
        EXPECT_EQ(captured.err.text(), err);
    }
}

TEST(progress, a_bar_makes_room_for_lines_and_is_gone_at_the_end)
{
    captured_console captured;
    {
        progress report(captured.console, progress_style::automatic, true, 2);
        captured.console.error({failure_kind::usage, "", "oh"});
    }
    const std::string bar = progress_bar(0, 2, 40);
    EXPECT_EQ(captured.err.text(), bar + "\r\x1B[Kveridial: oh\n" + bar + "\r\x1B[K");
    EXPECT_EQ(progress_bar(0, 4, 4), "[>   ] 0 of 4");
    EXPECT_EQ(progress_bar(3, 4, 4), "[===>] 3 of 4");
    EXPECT_EQ(progress_bar(4, 4, 4), "[====] 4 of 4");
}

} // namespace
} // namespace ov1
