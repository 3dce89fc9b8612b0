// veridial-bench: measures pixels and tables against other programs on the same frames, and checks all results.
#include "effect/build/build_lut.h"
#include "effect/lut/instruction_sets.h"
#include "pixel_bench.h"
#include "platform/cache_size.h"
#include "report.h"
#include "table_bench.h"
#if VERIDIAL_HAS_BRIDGE
#include "bridge_bench.h"
#endif
#if VERIDIAL_HAS_EDITOR
#include "editor_bench.h"
#endif

#include <charconv>
#include <cstring>
#include <fmt/format.h>
#include <fstream>
#include <string>
#include <thread>

namespace ov1::bench
{
namespace
{

constexpr const char* usage = "veridial-bench [--short] [--check-floors] [--rounds N]\n"
                              "  --short         small frames and few rounds, to check the answers only\n"
                              "  --check-floors  also end with 1 if a ratio is below its floor\n"
                              "  --rounds N      how many times each contender runs (9)\n"
                              "Ends with 1 if an answer is wrong, with 2 for wrong arguments.\n";

struct options
{
    bool brief = false;
    bool check_floors = false;
    int rounds = 9;
};

/// False for an unknown option or a bad number.
bool read(int count, char** arguments, options& to)
{
    for (int i = 1; i < count; ++i)
    {
        const std::string_view argument = arguments[i];
        if (argument == "--short")
            to.brief = true;
        else if (argument == "--check-floors")
            to.check_floors = true;
        else if (argument == "--rounds" && i + 1 < count)
        {
            const char* text = arguments[++i];
            const char* end = text + std::strlen(text);
            if (std::from_chars(text, end, to.rounds).ptr != end || to.rounds < 1)
                return false;
        }
        else
            return false;
    }
    return true;
}

std::string processor_name()
{
    std::ifstream info("/proc/cpuinfo");
    for (std::string line; std::getline(info, line);)
        if (line.starts_with("model name"))
            return line.substr(line.find(':') + 2);
    return "processor unknown";
}

/// The load of the last minute: times taken on a busy machine are worth less.
std::string load_average()
{
    std::ifstream file("/proc/loadavg");
    std::string load;
    file >> load;
    return load;
}

int run(const options& given)
{
    report to;
    std::string sets;
    for (const instruction_set& set : present_instruction_sets())
        sets += (sets.empty() ? "" : ", ") + set.name;
    to.say(fmt::format("{}, {} threads, L2 {} KiB, load {}\ninstruction sets: {}; the first one runs", processor_name(),
                       std::thread::hardware_concurrency(), level_2_cache_bytes() / 1024, load_average(), sets));

    lut_argb<lut_edge> table;
    // One table for all, with every step of the build in it.
    build_lut(everything_active(), veridial_luts(), skin_tables(), table);
    // A quarter of the width and height is enough to check answers.
    const std::size_t width = given.brief ? 960 : 3840, height = given.brief ? 540 : 2160;
    const int rounds = given.brief ? 3 : given.rounds;
    run_table_bench(to, rounds);
#if VERIDIAL_HAS_EDITOR
    run_editor_bench(to, rounds);
#endif
    run_pixel_bench(to, table, content::natural, width, height, rounds);
    run_pixel_bench(to, table, content::random, width, height, rounds);
#if VERIDIAL_HAS_BRIDGE
    run_bridge_bench(to, width, height, rounds);
#endif
    to.print_ratios();
    if (!to.answers_agree())
        to.say("\nAnswers differ.");
    return to.answers_agree() && (!given.check_floors || to.floors_hold()) ? 0 : 1;
}

} // namespace
} // namespace ov1::bench

int main(int count, char** arguments)
{
    ov1::bench::options given;
    if (!ov1::bench::read(count, arguments, given))
    {
        fmt::print(stderr, "{}", ov1::bench::usage);
        return 2;
    }
    return ov1::bench::run(given);
}
