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

/// Names the change between two states after the component's parameters: "Global Chroma" for one value,
/// "Sky: Angle, Strength" for up to three with the same first word, else the number of values.
std::string name_step(std::span<const std::uint8_t> before, std::span<const std::uint8_t> after,
                      icomponent_v1& component, language_id language);

/// Names of steps that are more than a change of values: a preset, a random look.
class step_labels
{
public:
    /// Names the step that led to the component's present position.
    void remember(icomponent_v1& component, std::string name);
    /// Null if the step has no name, or if the position holds another state by now.
    const std::string* find(icomponent_v1& component, int position) const;

private:
    /// A name and the state that it names. It does not apply to another state at the same position.
    struct label
    {
        std::string name;
        std::vector<std::uint8_t> state;
    };

    // By position in the undo history. A later step at a position replaces its label.
    std::map<int, label> labels;
};

/// One row of the history menu.
struct history_step
{
    int position = 0;
    std::string name;
    bool is_present = false; ///< the component is at this position
};

/// The positions that a user may go to, the latest first. The oldest is the state at the beginning of the history.
std::vector<history_step> list_history(icomponent_v1& component, const step_labels& labels, language_id language);

} // namespace ov1
