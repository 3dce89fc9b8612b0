// Names for the steps of the undo history, from what changed between two states.
#pragma once

#include "framework/icomponent_v1.h"
#include "shared/language_id.h"

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace ov1
{

/// "Sky: Angle, Strength" for values of one part of the panel, "Global Chroma" for one value, the number of values for
/// more than that. Names are the component's parameters'.
std::string name_step(std::span<const std::uint8_t> before, std::span<const std::uint8_t> after,
                      icomponent_v1& component, language_id language);

/// Names given to steps that are more than their values: a preset, a random look.
class step_labels
{
public:
    /// For the step that the component's present position stands for.
    void remember(icomponent_v1& component, std::string name);
    /// Null for a step without a name, or whose position has come to hold another state.
    const std::string* find(icomponent_v1& component, int position) const;

private:
    struct label
    {
        std::string name;
        std::vector<std::uint8_t> state;
    };

    std::map<int, label> labels;
};

struct history_step
{
    int position = 0;
    std::string name;
    bool is_present = false; ///< the grade is at this position
};

/// The positions that a user may jump to, the latest first; the oldest is the state that the history begins with.
std::vector<history_step> list_history(icomponent_v1& component, const step_labels& labels, language_id language);

} // namespace ov1
