#include "editor/controls/style/text_lines.h"

#include <utility>

namespace ov1
{

namespace
{

/// In UTF-8 every byte of a character after its first one has the bits 10xxxxxx.
bool begins_character(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

/// The index at which the next character begins, or the size of the text.
std::size_t next_character(std::string_view text, std::size_t at)
{
    do
        ++at;
    while (at < text.size() && !begins_character(text[at]));
    return at;
}

/// The number of bytes of a word that fit into the limit, at least those of one character.
std::size_t fitting_bytes(std::string_view word, double limit, const line_width& width)
{
    std::size_t fits = next_character(word, 0);
    for (std::size_t end = fits; end < word.size();)
    {
        end = next_character(word, end);
        if (width(word.substr(0, end)) > limit)
            break;
        fits = end;
    }
    return fits;
}

/// Removes everything up to the first separator from rest, and returns it without the separator.
std::string_view take_until(std::string_view& rest, char separator)
{
    const std::size_t end = rest.find(separator);
    const std::string_view taken = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return taken;
}

/// Fills each line with words until the next word does not fit.
void append_paragraph(std::vector<std::string>& lines, std::string_view paragraph, double limit,
                      const line_width& width)
{
    std::string line;
    while (!paragraph.empty())
    {
        std::string_view word = take_until(paragraph, ' ');
        if (word.empty())
            continue;
        std::string longer = line.empty() ? std::string(word) : line + " " + std::string(word);
        if (width(longer) <= limit)
        {
            line = std::move(longer);
            continue;
        }
        if (!line.empty())
            lines.push_back(std::exchange(line, {}));
        // A word that is wider than a line is cut; its rest begins the next line.
        while (width(word) > limit && next_character(word, 0) < word.size())
        {
            const std::size_t fits = fitting_bytes(word, limit, width);
            lines.emplace_back(word.substr(0, fits));
            word.remove_prefix(fits);
        }
        line = word;
    }
    // Also for an empty paragraph, which gives an empty line.
    lines.push_back(std::move(line));
}

} // namespace

std::vector<std::string> text_lines(std::string_view text, double limit, const line_width& width)
{
    std::vector<std::string> lines;
    while (!text.empty())
        append_paragraph(lines, take_until(text, '\n'), limit, width);
    return lines;
}

} // namespace ov1
