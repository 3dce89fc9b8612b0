// One word out of a few.
#pragma once

#include "command_line/problem.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ov1
{

template <typename T>
struct choice
{
    const char* name;
    T value;
};

/// The place of a word, in any case, among names. On failure sets the problem's reason and hint, which names the near
/// one or all.
[[nodiscard]] bool find_choice(std::string_view text, const std::vector<std::string>& names, std::size_t& place,
                               problem& why);

template <typename T, std::size_t count>
[[nodiscard]] bool read_choice(std::string_view text, const std::array<choice<T>, count>& choices, T& value,
                               problem& why)
{
    std::vector<std::string> names;
    for (const auto& c : choices)
        names.emplace_back(c.name);
    std::size_t place = 0;
    if (!find_choice(text, names, place, why))
        return false;
    value = choices[place].value;
    return true;
}

/// "auto|none|linear", as help shows it.
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
