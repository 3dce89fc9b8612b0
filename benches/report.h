// What a run found: answers, times and the ratios that have a floor.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ov1::bench
{

class report
{
public:
    /// A line of its own.
    void say(std::string_view line) const;

    /// An answer that is right, or differs by more than it may.
    void answer(const std::string& what, double difference, double allowed);

    /// A ratio that must not be below the floor.
    void ratio(const std::string& what, double value, double floor);

    /// All ratios beside their floors.
    void print_ratios() const;

    bool answers_agree() const { return wrong_answers == 0; }
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
