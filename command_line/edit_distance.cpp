#include "command_line/edit_distance.h"

#include "command_line/failure_line.h"

#include <algorithm>

namespace ov1
{

namespace
{

// More suggestions than these help nobody to choose.
constexpr std::size_t most_names = 3;
constexpr std::size_t shortest_part = 3; // fewer letters occur in too many names

/// The names at the smallest distance, if a third of the typed letters at most must change.
std::vector<std::string> nearest(const std::string& typed, std::span<const std::string> names)
{
    std::vector<std::string> result;
    std::size_t limit = std::max<std::size_t>(1, typed.size() / 3);
    for (const std::string& name : names)
    {
        const std::string plain = plain_name(name);
        const std::size_t distance = edit_distance(typed, plain);
        // With as many edits as it has letters, a name can be made from any text.
        if (distance > limit || distance >= plain.size())
            continue;
        // A nearer name discards all those found before it.
        if (distance < limit)
            result.clear();
        limit = distance;
        result.push_back(name);
    }
    return result;
}

/// The names that contain the typed text, such as "skin" for "Skin Angle".
std::vector<std::string> containing(const std::string& typed, std::span<const std::string> names)
{
    std::vector<std::string> result;
    if (typed.size() >= shortest_part)
        std::copy_if(names.begin(), names.end(), std::back_inserter(result),
                     [&](const std::string& name) { return plain_name(name).find(typed) != std::string::npos; });
    return result;
}

} // namespace

std::size_t edit_distance(std::string_view x, std::string_view y)
{
    // Row i holds the distances from the first i characters of x to every prefix of y. A transposition reaches two rows
    // back, so three rows are enough.
    std::vector<std::size_t> before_last(y.size() + 1);
    std::vector<std::size_t> last(y.size() + 1);
    std::vector<std::size_t> row(y.size() + 1);
    for (std::size_t j = 0; j <= y.size(); ++j)
        last[j] = j;
    for (std::size_t i = 1; i <= x.size(); ++i)
    {
        row[0] = i;
        for (std::size_t j = 1; j <= y.size(); ++j)
        {
            const std::size_t replaced = last[j - 1] + (x[i - 1] == y[j - 1] ? 0 : 1);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, replaced});
            // The last two characters are swapped: one edit after the prefixes before both.
            if (i > 1 && j > 1 && x[i - 1] == y[j - 2] && x[i - 2] == y[j - 1])
                row[j] = std::min(row[j], before_last[j - 2] + 1);
        }
        before_last.swap(last);
        last.swap(row);
    }
    return last[y.size()];
}

std::string plain_name(std::string_view name)
{
    std::string plain;
    for (const char c : name)
        if (c != ' ' && c != '-' && c != '_')
            plain += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    return plain;
}

std::string did_you_mean(std::string_view typed, std::span<const std::string> names)
{
    const std::string plain = plain_name(typed);
    std::vector<std::string> meant = nearest(plain, names);
    if (meant.empty())
        meant = containing(plain, names);
    if (meant.empty() || meant.size() > most_names)
        return {};
    std::string hint = "did you mean ";
    for (std::size_t i = 0; i < meant.size(); ++i)
    {
        if (i > 0)
            hint += i + 1 == meant.size() ? " or " : ", ";
        hint += in_quotes(meant[i]);
    }
    return hint += '?';
}

} // namespace ov1
