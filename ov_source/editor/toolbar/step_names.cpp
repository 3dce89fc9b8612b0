#include "editor/toolbar/step_names.h"

#include "framework/parameters/iparameter_v1.h"
#include "framework/state_blob.h"
#include "platform/iutils.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace ov1
{

namespace
{

/// Longer lists of names would not be read.
constexpr std::size_t most_named_values = 3;

/// The names of the parameters whose values differ, in the order of the new state. Empty if one of the two is no state.
std::vector<std::string> changed_names(std::span<const std::uint8_t> before, std::span<const std::uint8_t> after,
                                       icomponent_v1& component)
{
    std::vector<state_record> old_records, new_records;
    std::vector<std::string> names;
    if (!read_state(before, old_records) || !read_state(after, new_records))
        return names;
    for (const state_record& now : new_records)
    {
        const auto was = std::ranges::find(old_records, now.id, &state_record::id);
        const auto parameter = component.get_parameter(now.id);
        if (parameter && (was == old_records.end() || !(was->value.value == now.value.value)))
            names.push_back(parameter->get_name());
    }
    return names;
}

std::string first_word(const std::string& name) { return name.substr(0, name.find(' ')); }

/// "Sky: Angle, Strength"; empty if the names do not have the same first word.
std::string join(const std::vector<std::string>& names)
{
    const std::string group = first_word(names[0]);
    std::string text;
    for (const std::string& name : names)
    {
        // A name of one word would leave nothing after the colon.
        if (first_word(name) != group || name.size() <= group.size() + 1)
            return {};
        text += (text.empty() ? group + ": " : ", ") + name.substr(group.size() + 1);
    }
    return text;
}

} // namespace

std::string name_step(std::span<const std::uint8_t> before, std::span<const std::uint8_t> after,
                      icomponent_v1& component, language_id language)
{
    const auto names = changed_names(before, after, component);
    if (names.empty())
        return iutils::translate(language, "{en:No change}{de:Keine Änderung}");
    if (names.size() == 1)
        return names[0];
    const std::string joined = names.size() <= most_named_values ? join(names) : std::string();
    return joined.empty() ? fmt::format("{} {}", names.size(), iutils::translate(language, "{en:values}{de:Werte}"))
                          : joined;
}

void step_labels::remember(icomponent_v1& component, std::string name)
{
    const int position = component.get_undo_range().position;
    labels[position] = {std::move(name), component.get_undo_state(position)};
}

const std::string* step_labels::find(icomponent_v1& component, int position) const
{
    const auto found = labels.find(position);
    // After an undo, another change may have taken the same position.
    const bool holds = found != labels.end() && found->second.state == component.get_undo_state(position);
    return holds ? &found->second.name : nullptr;
}

std::vector<history_step> list_history(icomponent_v1& component, const step_labels& labels, language_id language)
{
    const undo_range range = component.get_undo_range();
    const auto name_of = [&](int position)
    {
        if (position == range.oldest)
            return iutils::translate(language, "{en:At the beginning}{de:Am Anfang}");
        const std::string* label = labels.find(component, position);
        return label ? *label
                     : name_step(component.get_undo_state(position - 1), component.get_undo_state(position), component,
                                 language);
    };
    std::vector<history_step> steps;
    for (int position = range.newest; position >= range.oldest; --position)
        steps.push_back({position, name_of(position), position == range.position});
    return steps;
}

} // namespace ov1
