#include "tools/looks/measures.h"

namespace ov1
{

std::vector<measured> measure(const look_data& data)
{
    std::vector<measured> rows;
    for (const auto& group : {measure_greys, measure_targets, measure_lattice, measure_pictures})
    {
        const std::vector<measured> found = group(data);
        rows.insert(rows.end(), found.begin(), found.end());
    }
    return rows;
}

} // namespace ov1
