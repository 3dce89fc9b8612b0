// What a sanitizer adds to the output of the programs under test.
#pragma once

#include <string>

namespace ov1
{

/// Where no symbolizer is installed a sanitizer says so as each program ends: "==123==WARNING: ...".
inline void drop_sanitizer_lines(std::string& text)
{
    for (std::size_t at; (at = text.find("==WARNING: ")) != std::string::npos;)
    {
        const std::size_t begin = text.rfind("==", at - 1), end = text.find('\n', at);
        text.erase(begin, end == std::string::npos ? end : end + 1 - begin);
    }
}

} // namespace ov1
