#include "editor/scopes/scopes_text.h"

#include <array>
#include <sstream>
#include <utility>

namespace ov1
{

namespace
{

// The words are kept in users' settings: they are never renamed.
constexpr const char* skin_line = "skin";
constexpr std::array<std::pair<const char*, scope_type>, scope_type_count> names = {{
    {"waveform", scope_type::waveform},
    {"parade", scope_type::parade},
    {"vectorscope", scope_type::vectorscope},
    {"histogram", scope_type::histogram},
}};

} // namespace

std::string scope_choice_text(const scope_choice& choice)
{
    std::string text;
    for (const auto& [name, type] : names)
        if (is_chosen(choice.shown, type))
            text.append(text.empty() ? "" : " ").append(name);
    if (choice.skin_line)
        text.append(" ").append(skin_line);
    return text;
}

scope_choice scope_choice_from_text(const std::string& text)
{
    scope_choice choice;
    // A scope_choice begins with the default scopes, not with none.
    choice.shown = {};
    bool any = false;
    std::istringstream words(text);
    for (std::string word; words >> word;)
    {
        choice.skin_line = choice.skin_line || word == skin_line;
        for (const auto& [name, type] : names)
            if (word == name)
                any = chosen(choice.shown, type) = true;
    }
    return any ? choice : scope_choice{};
}

} // namespace ov1
