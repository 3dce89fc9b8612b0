// Fifteen measures that the look data are held to.
#pragma once

#include "tools/looks/look_data.h"

#include <string>
#include <vector>

namespace ov1
{

struct measured
{
    int number;       ///< 1..15
    std::string what; ///< the subject in words
    double value;
    double least; ///< bounds of what is allowed, both included
    double most;

    bool met() const { return value >= least && value <= most; } ///< a NaN is not
};

/// All measures, several rows for some, in the order of their numbers. Takes about a second.
std::vector<measured> measure(const look_data& data);

// The groups that measure() goes through.
std::vector<measured> measure_greys(const look_data& data);    ///< 1 to 4
std::vector<measured> measure_targets(const look_data& data);  ///< 5 to 8
std::vector<measured> measure_lattice(const look_data& data);  ///< 9 to 11
std::vector<measured> measure_pictures(const look_data& data); ///< 12 to 15

} // namespace ov1
