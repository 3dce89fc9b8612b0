#include "command_line/choice.h"

#include "command_line/edit_distance.h"
#include "command_line/failure_line.h"
#include "command_line/number.h"

#include <algorithm>

namespace ov1
{

namespace
{

/// The hint where no name is similar: one of a, b, c.
std::string all_names(const std::vector<std::string>& names)
{
    std::string text = "one of ";
    for (const std::string& name : names)
    {
        if (&name != &names.front())
            text += ", ";
        text += name;
    }
    return text;
}

} // namespace

result<std::size_t> find_choice(std::string_view text, const std::vector<std::string>& names)
{
    text = trimmed(text);
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&](const std::string& name) { return plain_name(name) == plain_name(text); });
    if (found == names.end() || text.empty())
    {
        // A similar name is a better hint than the whole list.
        const std::string near = did_you_mean(text, names);
        return failure{failure_kind::usage,
                       {},
                       text.empty() ? "a value is missing" : "unknown value " + in_quotes(text),
                       near.empty() ? all_names(names) : near};
    }
    return static_cast<std::size_t>(found - names.begin());
}

} // namespace ov1
