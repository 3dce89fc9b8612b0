// The results of a run: answers, times, and ratios with a floor.
// Answers are checked in every run, ratios only with --check-floors: times depend on the machine.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ov1::bench
{

/// Collects answers and ratios of one run. Not thread-safe.
class report
{
public:
    /// Prints a line.
    void say(std::string_view line) const;

    /// Prints a result's difference from the right one; more than `allowed` is a wrong answer.
    void answer(const std::string& what, double difference, double allowed);

    /// Records a ratio and the floor that it should reach.
    void ratio(const std::string& what, double value, double floor);

    /// Prints all ratios with their floors.
    void print_ratios() const;

    /// True until an answer was wrong.
    bool answers_agree() const { return wrong_answers == 0; }
    /// Whether every recorded ratio reaches its floor.
    bool floors_hold() const;

private:
    struct row
    {
        std::string what;
        double value;
        double floor;
    };

    int wrong_answers = 0;
    std::vector<row> rows;
};

} // namespace ov1::bench
