// Fifteen measures that the look data must meet.
#pragma once

#include "tools/looks/look_data.h"

#include <string>
#include <vector>

namespace ov1
{

/// One row of the report.
struct measured
{
    int number;       ///< 1..15
    std::string what; ///< in words
    double value;
    double least; ///< the allowed range, both ends included
    double most;

    bool met() const { return value >= least && value <= most; } ///< false for a NaN
};

/// All measures, several rows for some, in the order of their numbers. Takes about a second.
std::vector<measured> measure(const look_data& data);

// The groups of which measure() consists.
std::vector<measured> measure_greys(const look_data& data);    ///< 1 to 4
std::vector<measured> measure_targets(const look_data& data);  ///< 5 to 8
std::vector<measured> measure_lattice(const look_data& data);  ///< 9 to 11
std::vector<measured> measure_pictures(const look_data& data); ///< 12 to 15

} // namespace ov1
