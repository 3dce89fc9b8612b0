#include "report.h"

#include <algorithm>
#include <fmt/format.h>

namespace ov1::bench
{

void report::say(std::string_view line) const
{
    fmt::print("{}\n", line);
    // Each line at once: a run takes minutes.
    std::fflush(stdout);
}

void report::answer(const std::string& what, double difference, double allowed)
{
    const bool agrees = difference <= allowed; // a NaN does not
    wrong_answers += !agrees;
    say(fmt::format("  {:<58} differs by {:<9.3g} {}", what, difference,
                    agrees ? (allowed == 0.0 ? "" : fmt::format("(may by {:.3g})", allowed)) : "WRONG"));
}

void report::ratio(const std::string& what, double value, double floor) { rows.push_back({what, value, floor}); }

void report::print_ratios() const
{
    say(fmt::format("\n{:<62} {:>7} {:>7}", "ratio", "value", "floor"));
    for (const row& each : rows)
        say(fmt::format("{:<62} {:>7.2f} {:>7.2f}{}", each.what, each.value, each.floor,
                        each.value < each.floor ? "  BELOW" : ""));
}

bool report::floors_hold() const
{
    return std::all_of(rows.begin(), rows.end(), [](const row& each) { return each.value >= each.floor; });
}

} // namespace ov1::bench
