// An option whose value is one of a few words.
#pragma once

#include "shared/result.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

/// One word of an option and what it stands for. The words are lower case and must differ in more than blanks and
/// dashes, because they are compared by plain_name.
template <typename T>
struct choice
{
    const char* name;
    T value;
};

/// The index of a word, in any case, among names. The failure has no subject; its hint names the nearest word, or all.
result<std::size_t> find_choice(std::string_view text, const std::vector<std::string>& names);

/// The value of a word, in any case.
/// Fails as find_choice does. The first word that matches wins.
template <typename T, std::size_t count>
result<T> read_choice(std::string_view text, const std::array<choice<T>, count>& choices)
{
    std::vector<std::string> names;
    for (const auto& c : choices)
        names.emplace_back(c.name);
    const auto index = find_choice(text, names);
    if (!index)
        return index.error();
    return choices[*index].value;
}

/// "auto|none|linear", for the help.
template <typename T, std::size_t count>
std::string choice_names(const std::array<choice<T>, count>& choices)
{
    std::string names;
    for (const auto& c : choices)
    {
        if (!names.empty())
            names += '|';
        names += c.name;
    }
    return names;
}

} // namespace ov1
